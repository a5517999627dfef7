#include "frmGoal.h"

namespace zorvane::screens {

frmGoal::frmGoal(Game& game, QWidget* parent)
    : EndPicture(game, "frmGoal", "picGoal", "images\\goal.png", "Goal reached", parent) {}

void frmGoal::pictureDoubleClicked() {
    hide();
}

} // namespace zorvane::screens
