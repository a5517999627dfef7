#include "session/TitleScreen.h"

#include "core/GameError.h"
#include "core/Version.h"
#include "session/Game.h"

namespace zorvane {

std::string versionCaption() {
    return "Zorvane v" + programVersion();
}

std::string changesText() {
    return "Changes from previous version: The primary change in this version is that there "
           "is now a good reason to choose employees with high ambition, hiring a more "
           "ambitious staff will result in a higher rating!";
}

void showChanges(Game& game) {
    game.screen().titleStatus(changesText());
}

void exitTitle(Game& game) {
    if (!game.playing)
        game.endProcess("exit from the title screen");
}

void runFileOption(Game& game, int index) {
    switch (index) {
    case 0:
        game.newGame();
        return;
    case 1:
        game.files.openTheater();
        return;
    case 2:
        game.files.saveGame();
        return;
    case 3:
        game.files.saveAs();
        return;
    case 4:
        game.quitGame();
        return;
    case 5:
        game.reloadMath();
        return;
    default:
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: file menu option " + std::to_string(index));
    }
}

} // namespace zorvane
