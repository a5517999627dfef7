// Fuzz target of games.lst: the arcade titles read at start-up, then bought and played.
//
// The input is the program folder's games.lst. A rich game starts on it (the list is read,
// every title rolled, the first titles released), the room is filled from the buy list, the
// screens' texts are built, two months and a year of the market pass, one machine is sold.
// The arcade section is then saved, read into a fresh game and saved again, and must not
// change.
#include "FuzzSupport.h"
#include "SaveCompare.h"

#include "core/LineReader.h"

#include <sstream>

using namespace zorvane;
using namespace zorvane::fuzz;

namespace {

std::string saveArcadeSection(const Game& game) {
    std::ostringstream text;
    LineWriter out(text);
    game.arcades.saveArcades(out);
    return text.str();
}

void loadArcadeSection(Game& game, const std::string& text) {
    std::istringstream file(text);
    LineReader in(file, "arcade section");
    std::string line;
    while (in.readLine(line))
        if (line == "<arcades>")
            game.arcades.loadArcades(in);
}

void fillTheRoom(Game& game) {
    arcadeManager& arcades = game.arcades;
    while (!arcades.buyGames.empty() && arcades.getMachineCount() < game.math.arcademax)
        arcades.buyGame(1);
    arcades.refreshBuyGrid();
    (void)arcades.buyGridRows();
    for (int n = 1; n <= arcades.getMachineCount(); ++n) {
        arcades.showGameDetails(n);
        (void)arcades.detailsView();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzFolder& folder = FuzzFolder::instance();
    static const bool trimmed = (folder.trimCatalogues(40), true);
    (void)trimmed;
    folder.write("games.lst", data, size);
    std::string saved;
    FuzzGame game;
    runInput([&] {
        startRichGame(*game);
        fillTheRoom(*game);
        game->arcades.arcadesNextMonth();
        game->arcades.arcadesNextMonth();
        game->arcades.arcadesNextYear();
        if (game->arcades.getMachineCount() > 0)
            game->arcades.sellGame(1);
        fillTheRoom(*game);
        saved = saveArcadeSection(*game);
    });
    if (saved.empty())
        return 0;
    FuzzGame again;
    std::string savedAgain;
    try {
        startWithShippedMath(*again);
        loadArcadeSection(*again, saved);
        savedAgain = saveArcadeSection(*again);
    } catch (const std::exception& e) {
        finding(std::string("the arcade section the game saved does not load: ") + e.what());
    }
    const std::string difference = firstDifference(saved, savedAgain);
    if (!difference.empty())
        finding("arcades saved, loaded and saved again differ: " + difference);
    return 0;
}
