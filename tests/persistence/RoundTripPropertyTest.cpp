// Random games played by the lab's random player (every family of the screens), saved,
// loaded into a fresh session and into the same one, and saved again: the files must agree
// byte for byte, section by section.
#include "Simulator.h"
#include "arcade/ArcadeRoom.h"
#include "lab/RandomStrategy.h"
#include "persistence/SavedFile.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct RoundTripProperty : ::testing::TestWithParam<unsigned> {
    DataFolder data;
    TempDir saves;
    std::ostringstream out;
};

std::string saveAs(Game& game, const std::string& path) {
    game.savedPath = path;
    EXPECT_TRUE(game.files.saveGame());
    return readFile(path);
}

// A person hired while on the staff (the day's applicants are drawn from everyone) stands
// twice in the staff list as one object, whose number is the later place: the file writes
// that number in both blocks. The loader numbers people by place and makes two of them, so
// a loaded game writes each block's own place there. Returns the first file as a loaded
// game writes it.
std::string asLoadedGameWritesIt(std::string text, const employeeManager& staff) {
    const std::string head = "\r\n<employee>\r\nnum=";
    std::size_t at = text.find("\r\n<emps>\r\n");
    for (int place = 1; place <= staff.employeeCount(); ++place) {
        at = text.find(head, at) + head.size();
        const std::size_t end = text.find("\r\n", at);
        const employee& person = staff.getEmployee(place);
        for (int other = 1; other <= staff.employeeCount(); ++other)
            if (other != place && &staff.getEmployee(other) == &person)
                text.replace(at, end - at, numberTextSigned(place));
    }
    return text;
}

// A cabinet dragged past the room's top or left edge is saved where it stands, but a place of
// 0 or less counts as never stored: a loaded game puts it back at the template's place.
std::string cabinetsAsLoaded(const std::string& text) {
    static const std::regex top("\r\nMyCabTop=(-[^\r]*|0)\r\n");
    static const std::regex left("\r\nmyCabLeft=(-[^\r]*|0)\r\n");
    std::string out = std::regex_replace(
        text, top, "\r\nMyCabTop=" + numberText(ArcadeRoom::templateTop) + "\r\n");
    return std::regex_replace(out, left,
                              "\r\nmyCabLeft=" + numberText(ArcadeRoom::templateLeft) + "\r\n");
}

} // namespace

// Saves, loads into a fresh session and saves again; then the same into the playing session
// when the rules let a game come back there unchanged.
void checkRoundTrip(RoundTripProperty& t, sim::Simulator& game, std::uint64_t seed,
                    const std::string& when) {
    const std::string path = t.saves.file("first.zvn");
    const std::string first = saveAs(game.game(), path);
    auto fresh = startSimulator(t.data, seed + 1000, t.out);
    fresh->game().files.loadGame(path);
    const std::string expected =
        travellingPart(asLoadedGameWritesIt(cabinetsAsLoaded(first), game.game().employees));
    const std::string again = travellingPart(saveAs(fresh->game(), t.saves.file("fresh.zvn")));
    expectSameSections(expected, again, when + ", fresh");
    EXPECT_EQ(expected, again) << when << ", fresh"; // byte for byte
    // Loaded over a staff, half of the old staff stays in front of the loaded one (the
    // staff's reader removes by rising number while the list closes up): only a session
    // with no staff takes a game back unchanged.
    if (game.game().employees.employeeCount() > 0)
        return;
    game.game().files.loadGame(path);
    const std::string same = saveAs(game.game(), t.saves.file("same.zvn"));
    expectSameSections(cabinetsAsLoaded(first), same, when + ", same");
    EXPECT_EQ(cabinetsAsLoaded(first), same) << when; // byte for byte
}

TEST_P(RoundTripProperty, SaveLoadSaveIsByteIdentical) {
    const unsigned seed = GetParam();
    auto game = startSimulator(data, seed, out);
    game->game().finances.setFunds(2e6); // as a goal's starting funds would
    lab::RandomStrategy player(seed * 7919u);
    for (int day = 1; day <= 160; ++day) {
        player.beforeDay(game->game());
        game->game().calendar.nextDay();
        if (day % 40 == 0)
            checkRoundTrip(*this, *game, seed,
                           "seed " + std::to_string(seed) + " day " + std::to_string(day));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RoundTripProperty, ::testing::Values(1u, 2u, 3u, 4u, 5u, 6u));
