#pragma once
#include <QDialog>

#include <array>

class QLabel;

namespace zorvane {
class Game;
}

namespace zorvane::screens {

class ButtonLabel;

// The file menu: a small window under the main screen's "File" with the six options. It is
// shown modally; the chosen option runs while it is still open, and it hides afterwards
// whatever came of it.
class frmMenuFile : public QDialog {
    Q_OBJECT
  public:
    explicit frmMenuFile(Game& game, QWidget* parent = nullptr);

    // Placed below the menu bar of the main screen whose top left is given, then shown
    // modally until an option has run (or Esc).
    void showAt(const QPoint& mainTopLeft);
    // The option of that index, as its click does it.
    void choose(int index);

    ButtonLabel* option(int index) const { return options_.at(static_cast<std::size_t>(index)); }

  protected:
    // Up and Down walk the options; Space or Enter on one chooses it; Esc closes the menu.
    void keyPressEvent(QKeyEvent* e) override;

  private:
    Game& game_;
    QLabel* label1_;
    std::array<ButtonLabel*, 6> options_{};
};

} // namespace zorvane::screens
