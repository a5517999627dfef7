// Random games played through the simulator's commands, saved, loaded into a fresh session
// and into the same one, and saved again: the files must agree byte for byte, section by
// section. The moves are drawn from every command the simulator knows, so each manager's
// section joins the test as soon as its commands exist.
#include "Simulator.h"
#include "StateJson.h"
#include "core/GameError.h"
#include "persistence/SavedFile.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

using namespace zorvane;
using namespace zorvane::test;
using nlohmann::json;

namespace {

// How many entries a list of the state has (0 when the state does not have it yet).
int listSize(const json& state, const char* key) {
    const auto it = state.find(key);
    return it != state.end() && it->is_array() ? static_cast<int>(it->size()) : 0;
}

class RandomPlayer {
  public:
    explicit RandomPlayer(unsigned seed) : dice_(seed) {}

    // One move a player could make on today's screens; empty when the drawn move has
    // nothing to work on.
    std::string move(const json& s) {
        switch (pick(0, 24)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
        case 5:
            return words("day", {{1, 6}});
        case 6:
            return row("hire", listSize(s, "hire"));
        case 7: // keep a staff, so that every section of the file travels
            return listSize(s, "employees") > 8 ? row("fire", listSize(s, "employees"))
                                                : row("hire", listSize(s, "hire"));
        case 8:
        case 9:
            return listSize(s, "employees")
                       ? words("assign", {{1, listSize(s, "employees")}, {0, 7}})
                       : "";
        case 10:
            return row("buymovie", listSize(s, "buyMovies"));
        case 11:
            return listSize(s, "myMovies")
                       ? words("show", {{1, listSize(s, "myMovies")}, {1, 8}, {1, 8}})
                       : "";
        case 12:
            return words("ticket", {{0, 2}, {2, 12}}, " $") + ".50";
        case 13:
            return words("ads", {{1, 8}, {0, 3}});
        case 14:
            return words(pick(0, 3) ? "promo add" : "promo drop", {{0, 4}});
        case 15:
            return words("quality", {{0, 4}, {0, 2}});
        case 16:
            return words(pick(0, 1) ? "price" : "stock", {{0, 4}, {1, 300}});
        case 17:
            return row("buygame", listSize(s, "buyGames"));
        case 18:
            return row(pick(0, 1) ? "sellgame" : "repairgame", listSize(s, "myGames"));
        case 19:
            return words("loan", {{1000, 60000}, {3, 60}});
        case 20:
            return "payoff";
        case 21: {
            static const char* building[] = {"repair", "renovate", "remodel", "buybuilding"};
            return building[pick(0, 3)];
        }
        case 22:
            return words("matinee", {{1, 8}});
        case 23: {
            if (listSize(s, "myMovies") == 0)
                return "";
            const std::string select = words("select", {{0, listSize(s, "myMovies") - 1}});
            return pick(0, 1) ? select : select + "\nsellmovie";
        }
        default: {
            const std::string input = words("input", {{5, 12}}, " $");
            return input + "\n" + words("wage", {{1, 7}});
        }
        }
    }

  private:
    int pick(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(dice_); }
    // The command and its numbers, drawn from left to right, each after a blank (the last
    // one after `lastGap`). No two draws share an expression, whose order the compiler picks.
    std::string words(std::string command, std::initializer_list<std::pair<int, int>> ranges,
                      const char* lastGap = " ") {
        std::size_t left = ranges.size();
        for (const auto& [lo, hi] : ranges) {
            const int value = pick(lo, hi);
            command += (--left == 0 ? lastGap : " ") + std::to_string(value);
        }
        return command;
    }
    std::string row(const std::string& command, int rows) {
        return rows > 0 ? words(command, {{1, rows}}) : "";
    }
    std::mt19937 dice_;
};

struct RoundTripProperty : ::testing::TestWithParam<unsigned> {
    DataFolder data;
    TempDir saves;
    std::ostringstream out;

    std::unique_ptr<sim::Simulator> session(std::uint64_t seed) {
        sim::SimOptions options;
        options.dataDir = data.path().string();
        options.seed = seed;
        options.quiet = true;
        auto s = std::make_unique<sim::Simulator>(options, out);
        s->startup();
        return s;
    }
};

std::string saveAs(Game& game, const std::string& path) {
    game.savedPath = path;
    EXPECT_TRUE(game.files.saveGame());
    return readFile(path);
}

void expectSameSections(const std::string& expected, const std::string& actual,
                        const std::string& when) {
    const auto a = splitSections(expected), b = splitSections(actual);
    ASSERT_EQ(a.size(), b.size()) << when;
    for (std::size_t i = 0; i < a.size(); ++i)
        ASSERT_EQ(a[i].lines, b[i].lines) << when << ": section " << a[i].tag;
    EXPECT_EQ(expected, actual) << when;
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

} // namespace

enum class Outcome { Made, Refused, Ended };

// Plays the lines of one move. A line the screens would not offer is refused; a fatal error
// ends the process in the game, and so this random game.
Outcome tryMove(sim::Simulator& game, const std::string& move, int& line) {
    if (move.empty())
        return Outcome::Refused;
    std::istringstream lines(move);
    std::string command;
    try {
        while (std::getline(lines, command))
            game.runLine(command, ++line);
        return Outcome::Made;
    } catch (const sim::ScriptError&) {
        return Outcome::Refused;
    } catch (const GameError& e) {
        std::cerr << "game ended by '" << command << "': " << e.what() << '\n';
        return Outcome::Ended;
    }
}

// Saves, loads into a fresh session and saves again; then the same into the playing session
// when the rules let a game come back there unchanged.
void checkRoundTrip(RoundTripProperty& t, sim::Simulator& game, std::uint64_t seed,
                    const std::string& when) {
    const std::string path = t.saves.file("first.zvn");
    const std::string first = saveAs(game.game(), path);
    auto fresh = t.session(seed + 1000);
    fresh->game().files.loadGame(path);
    expectSameSections(travellingPart(asLoadedGameWritesIt(first, game.game().employees)),
                       travellingPart(saveAs(fresh->game(), t.saves.file("fresh.zvn"))),
                       when + ", fresh");
    // Loaded over a staff, half of the old staff stays in front of the loaded one (the
    // staff's reader removes by rising number while the list closes up): only a session
    // with no staff takes a game back unchanged.
    if (game.game().employees.employeeCount() > 0)
        return;
    game.game().files.loadGame(path);
    expectSameSections(first, saveAs(game.game(), t.saves.file("same.zvn")), when + ", same");
}

TEST_P(RoundTripProperty, SaveLoadSaveIsByteIdentical) {
    const unsigned seed = GetParam();
    auto game = session(seed);
    game->game().finances.setFunds(2e6); // as a goal's starting funds would
    RandomPlayer player(seed * 7919u);
    int line = 0, checks = 0, made = 0;
    for (int step = 1; step <= 160; ++step) {
        const Outcome outcome = tryMove(*game, player.move(sim::gameState(game->game())), line);
        if (outcome == Outcome::Ended)
            break;
        made += outcome == Outcome::Made;
        if (step % 40 == 0) {
            checkRoundTrip(*this, *game, seed,
                           "seed " + std::to_string(seed) + " step " + std::to_string(step));
            ++checks;
        }
    }
    EXPECT_EQ(checks, 4) << "the random game ended early";
    EXPECT_GT(made, 80);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RoundTripProperty, ::testing::Values(1u, 2u, 3u, 4u, 5u, 6u));
