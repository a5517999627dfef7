// Fuzz target of games.lst: the arcade titles read at start-up, then bought and played.
//
// The input is the program folder's games.lst. A rich game starts on it (the list is read,
// every title rolled, the first titles released), the room is filled from the buy list, the
// screens' texts are built, two months and a year of the market pass, one machine is sold.
// The arcade section is then saved, read into a fresh game and saved again, and must not
// change: the titles travel through the save.
#include "FuzzSupport.h"

#include "arcade/ArcadeTexts.h"

using namespace zorvane;
using namespace zorvane::fuzz;

namespace {

void fillTheRoom(Game& game) {
    arcadeManager& arcades = game.arcades;
    while (!arcades.buyGames.empty() && arcades.getMachineCount() < game.math.arcademax)
        arcades.buyGame(1);
    arcades.refreshBuyGrid();
    (void)arcadeBuyGrid(arcades);
    for (int n = 1; n <= arcades.getMachineCount(); ++n) {
        arcades.showGameDetails(n);
        (void)arcadeDetails(arcades);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput("games.lst", data, size);
    FuzzGame game;
    bool played = false;
    runInput([&] {
        startRichGame(*game);
        fillTheRoom(*game);
        game->arcades.arcadesNextMonth();
        game->arcades.arcadesNextMonth();
        game->arcades.arcadesNextYear();
        if (game->arcades.getMachineCount() > 0)
            game->arcades.sellGame(1);
        fillTheRoom(*game);
        played = true;
    });
    if (played)
        checkSectionsRoundTrip(*game, {"<arcades>"}, "arcade section");
    return 0;
}
