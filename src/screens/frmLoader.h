#pragma once
#include <QDialog>
#include <QPixmap>

class QLabel;
class QListWidget;
class QPlainTextEdit;

namespace zorvane {
class Game;
}

namespace zorvane::screens {

class ButtonLabel;
class QtScreen;

// The title screen: the theater at night, the goal list, the status box where start-up writes
// its progress (and then the picked goal's description), the version button, "Play !" and
// the exit. It is the first screen shown; the Goal menu brings it back modally.
class frmLoader : public QDialog {
    Q_OBJECT
  public:
    explicit frmLoader(Game& game, QWidget* parent = nullptr);

    // Hooks the title screen into the screen port: status lines, goal descriptions, the goal
    // list and the Goal menu's modal showing.
    void attach(QtScreen& screen);

    // sLog: a line break and the line at the end of the status box, caret at the end.
    void sLog(const QString& line);
    // showDetails: the status box shows only this text (a goal's description).
    void showDetails(const QString& text);
    // The goal list from the game's goals, list index = goal index, no line picked.
    void refreshGoals();
    // The Goal menu: shown modally until "Play !" or the exit hides it.
    void showModal();

    // What the buttons do (a click on them runs these).
    void startPlay();
    void exitClicked();
    void versionClicked();

  signals:
    // The first "Play !": the main screen comes up.
    void mainScreenWanted();

  public slots:
    // Esc does nothing here: the exit is a button of its own.
    void reject() override {}

  protected:
    void paintEvent(QPaintEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

  private:
    void goalClicked();

    Game& game_;
    QPixmap background_;
    QLabel* label1_;
    QListWidget* lstGoals_;
    QPlainTextEdit* txtStatus_;
    ButtonLabel* lbcVer_;
    ButtonLabel* lbcStart_;
    ButtonLabel* lbcExit_;
};

} // namespace zorvane::screens
