#include "frmLose.h"

#include "session/Game.h"

namespace zorvane::screens {

frmLose::frmLose(Game& game, QWidget* parent)
    : EndPicture(game, "frmLose", "picLose", "images\\lose.png", "Theater closed down", parent) {}

void frmLose::pictureDoubleClicked() {
    hide();
    game_.quitGame();
}

} // namespace zorvane::screens
