#pragma once
#include <QWidget>

class QPlainTextEdit;

namespace zorvane {
class Game;
}

namespace zorvane::screens {

// The big log window: the whole game log in one box with no length limit. When it becomes
// the active window it takes a copy of the main log box; while it is visible every new line
// of the game log is added to it as well, so it keeps what the main box throws away.
class frmLog : public QWidget {
    Q_OBJECT
  public:
    explicit frmLog(Game& game, QWidget* parent = nullptr);

    // A new line of the game log (the main box gets it too). Ignored while hidden.
    void appendLine(const QString& line);
    // Copies the main log box whole and puts the caret at the end.
    void copyLog();

    QPlainTextEdit* box() const { return txtBigLog_; }

  protected:
    bool event(QEvent* e) override;

  private:
    Game& game_;
    QPlainTextEdit* txtBigLog_;
};

} // namespace zorvane::screens
