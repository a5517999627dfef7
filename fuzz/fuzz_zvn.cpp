// Fuzz target of the saved-game loader: a .zvn file read into a started game.
//
// The input is read section by section as "Open Theater" reads it. A run-time error of a
// section reader ends the load, which the game swallows by design: a correct outcome. When
// the whole file reads, the game is saved, that save is opened in a fresh game through
// loadGame and saved again, and the two saves must be the same apart from the fields the
// game does not read back (SaveCompare.h).
#include "FuzzSupport.h"
#include "SaveCompare.h"

#include "core/Text.h"

#include <map>

using namespace zorvane;
using namespace zorvane::fuzz;

namespace {

// The load as "Open Theater" runs it, with nothing swallowed, so the target learns whether
// the file read to its end.
void readStrictly(Game& game, const std::string& path) {
    game.savedPath = path;
    game.logBox.clear();
    game.gameLog("Loading " + path, 0);
    game.files.readAll(path);
}

// The save with its error let through: a game that loaded must save.
std::string saveStrictly(Game& game, const std::string& path) {
    game.files.writeAll(path);
    return readFile(path);
}

// Whether a section's open tag stands more than once in the file. A section read twice can
// leave another section's references dangling, as the game itself leaves them: a second
// <movies> after <showtimes> empties the own list under booked showtimes. Such a game saves
// a file that does not load again, and that is the game's behaviour, not a finding.
bool readsASectionTwice(const std::string& text) {
    std::map<std::string, int> seen;
    for (const std::string& line : saveLines(text)) {
        const std::string tag = toLower(line);
        for (const GameFiles::Section& s : GameFiles::sections())
            if (tag == s.tag && ++seen[tag] > 1)
                return true;
    }
    return false;
}

// Why a save that the game wrote came back different: its strict read's error, if any.
void explainDifference(const std::string& input, const std::string& first,
                       const std::string& difference) {
    FuzzGame check;
    startWithShippedMath(*check);
    try {
        readStrictly(*check, first);
    } catch (const GameError& e) {
        if (readsASectionTwice(input))
            return;
        finding(std::string("the game's own save does not load again: ") + e.what());
    }
    finding("save, load and save again differ: " + difference);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FuzzFolder& folder = FuzzFolder::instance();
    const std::string input = writeInput("input.zvn", data, size);
    const std::string first = folder.file("first.zvn");
    const std::string second = folder.file("second.zvn");
    FuzzGame loaded;
    startWithShippedMath(*loaded);
    bool read = false;
    runInput([&] {
        readStrictly(*loaded, input);
        read = true;
    });
    if (!read)
        return 0;
    std::string saved1;
    try {
        saved1 = saveStrictly(*loaded, first);
    } catch (const std::exception& e) {
        finding(std::string("a game that loaded cannot be saved: ") + e.what());
    }
    FuzzGame again;
    startWithShippedMath(*again);
    again->files.loadGame(first); // as "Open Theater" runs it: a failure is silent
    std::string saved2;
    try {
        saved2 = saveStrictly(*again, second);
    } catch (const std::exception& e) {
        finding(std::string("a game loaded from the game's own save cannot be saved: ") + e.what());
    }
    const std::string difference = firstDifference(saved1, saved2);
    if (!difference.empty())
        explainDifference(readFile(input), first, difference);
    return 0;
}
