#pragma once
#include <QWidget>

#include <array>

class QCheckBox;

namespace zorvane {
class Game;
}

namespace zorvane::screens {

class QtScreen;
class Screenshots;

// The settings screen: four check boxes on a tab, each the live copy of a value of the
// per-user settings store. A click on a box is the box's handler in the logic (it writes the
// store at once: there is no OK button); the boxes show what the logic holds. Closing the
// window only hides it.
class frmSettings : public QWidget {
    Q_OBJECT
  public:
    explicit frmSettings(Game& game, QWidget* parent = nullptr);

    // The Settings entry of the main screen's menu.
    void showSettings();
    // Shows the four boxes as the logic holds them.
    void paintBoxes();

    void attach(QtScreen& screen);
    void addScreenshots(Screenshots& shots);

  protected:
    void closeEvent(QCloseEvent* e) override;

  private:
    Game& game_;
    std::array<QCheckBox*, 4> boxes_{};
};

} // namespace zorvane::screens
