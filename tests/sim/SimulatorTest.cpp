// The simulator: whole runs with their exit status and output, then a table of script lines
// and what the game's state shows after them.
#include "Simulator.h"
#include "core/GameError.h"
#include "core/Text.h"
#include "support/SimScenario.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>

using namespace zorvane;
using namespace zorvane::test;
using nlohmann::json;

namespace {

struct RunCase {
    const char* name;
    std::vector<std::string> script;
    int status = 0;
    std::vector<std::string> outHas = {};
    std::vector<std::string> errHas = {};
    std::vector<std::pair<std::string, std::string>> math = {};
    bool quiet = true;
    bool stateShown = true; // the script's last "state" printed
};

const RunCase runCases[] = {
    {"EchoesTheLogAndTheQuestions",
     {"answer cancel", "quit", "day"},
     0,
     {" -- Another day has arrived --\n", "ask: Save your theater before quitting? -> cancel\n"},
     {},
     {},
     false,
     false},
    {"QuittingEndsTheRunWithStatusZero",
     {"answer no", "quit", "day 5", "state"},
     0,
     {"process ended: "},
     {},
     {},
     true,
     false},
    {"ABadLineIsStatusTwoAndNamesTheLine", {"day", "# fine", "dance 3"}, 2, {}, {"script line 3"}},
    {"ABadNumberIsStatusTwo", {"day x"}, 2},
    {"AMissingWordIsStatusTwo", {"speed"}, 2},
    {"NoThirteenthMonthBox", {"monthfunds 12"}, 2},
    {"AFatalErrorIsStatusSeventy",
     {"day"},
     70,
     {},
     {"fatal: ", "gamespeed1"},
     {{"gamespeed1", "99999"}}},
    {"AnAnswerAtTheTopServesStartUp", {"answer yes", "state"}, 0, {"{"}, {}, {{"mathver", "1.0"}}},
    {"ANoAtStartUpEndsTheProcess",
     {"answer no", "state"},
     0,
     {"process ended"},
     {},
     {{"mathver", "1.0"}},
     true,
     false},
    // Not a game error: a name typed with a byte that is no UTF-8 cannot go into the JSON.
    {"AnyErrorAtTheTopIsFatal", {"buygame 1", "rename 1 caf\xe9", "state"}, 70, {}, {"fatal: "}},
};

struct SimRuns : ::testing::TestWithParam<RunCase> {};

TEST_P(SimRuns, StatusAndOutput) {
    const RunCase& c = GetParam();
    DataFolder data;
    for (const auto& [key, value] : c.math)
        data.setMath({{key, value}});
    sim::SimOptions options;
    options.dataDir = data.path().string();
    options.quiet = c.quiet;
    std::ostringstream out, err;
    sim::Simulator simulator(options, out);
    EXPECT_EQ(simulator.run(c.script, err), c.status) << err.str();
    for (const std::string& text : c.outHas)
        EXPECT_NE(out.str().find(text), std::string::npos) << text << "\n" << out.str();
    for (const std::string& text : c.errHas)
        EXPECT_NE(err.str().find(text), std::string::npos) << text << "\n" << err.str();
    if (!c.stateShown) {
        EXPECT_EQ(out.str().find("{"), std::string::npos); // nothing after the end ran
    }
}

INSTANTIATE_TEST_SUITE_P(Runs, SimRuns, ::testing::ValuesIn(runCases),
                         [](const auto& row) { return std::string(row.param.name); });

std::string runScript(const DataFolder& data, const std::vector<std::string>& script,
                      std::uint64_t seed, const std::string& arg = "") {
    sim::SimOptions options;
    options.dataDir = data.path().string();
    options.seed = seed;
    options.arg = arg;
    options.quiet = true;
    std::ostringstream out, err;
    sim::Simulator simulator(options, out);
    EXPECT_EQ(simulator.run(script, err), 0) << err.str();
    return out.str();
}

} // namespace

TEST(Simulator, AMathFileArgumentReplacesMathTxtAlsoOnReload) {
    DataFolder data;
    const std::string math = readFile(data.file("math.txt"));
    const std::string mth = data.write("custom.MTH", math + "\nfundsmin=-12345\ngamespeed1=7\n");
    data.setMath({{"gamespeed1", "5"}});
    const json state = json::parse(runScript(data, {"reloadmath", "state"}, 1, "\"" + mth + "\""));
    EXPECT_EQ(state["math"]["gamespeed"][1], 7);
    EXPECT_EQ(state["math"]["fundsmin"], -12345);
}

TEST(Simulator, TheDemoScriptHiresItsStaffInItsMonth) {
    DataFolder data;
    std::vector<std::string> script;
    std::istringstream in(readFile(data.file("demo.txt")));
    for (std::string line; std::getline(in, line);)
        script.push_back(line);
    sim::SimOptions options;
    options.dataDir = data.path().string();
    options.seed = 2026;
    std::ostringstream out, err;
    sim::Simulator simulator(options, out);
    ASSERT_EQ(simulator.run(script, err), 0) << err.str();
    int hired = 0;
    for (std::size_t p = out.str().find(" is a new member"); p != std::string::npos;
         p = out.str().find(" is a new member", p + 1))
        ++hired;
    EXPECT_EQ(hired, 7);
    EXPECT_EQ(simulator.game().calendar.currentmonth, 1);
}

TEST(Simulator, GraphRedrawAndAMonthsBox) {
    DataFolder data;
    const std::string out =
        runScript(data, {"day 28", "graph", "monthfunds 10", "monthfunds 11", "state"}, 1);
    const json state = json::parse(out.substr(out.rfind("\n{", out.size() - 2) + 1));
    const double january = state["histfunds"][0].get<double>();
    EXPECT_NE(out.find("ask: Funds for the month of Jan: " + formatMoney(january) + " -> ok\n"),
              std::string::npos)
        << out;
    EXPECT_NE(out.find("ask: Funds for the month of Feb: $0 -> ok\n"), std::string::npos);
    const auto& graph = state["graph"];
    EXPECT_EQ(graph["graphMonth"][11], 1);
    EXPECT_EQ(graph["monthNames"][10], "Jan");
    EXPECT_EQ(graph["graphHigh"], std::max(january, state["funds"].get<double>()));
    EXPECT_EQ(graph["scale"].size(), 10u);
    EXPECT_EQ(graph["pointY"].size(), 12u);
}

// ---------------------------------------------------------------- commands

namespace {

enum class Fails { No, Script, Game };

// Lines run on a game just started (seed 3); the last line may be meant to fail.
struct CommandCase {
    const char* name;
    std::vector<std::string> lines;
    std::vector<Check> checks;
    Fails fails = Fails::No;
};

const CommandCase commandCases[] = {
    // The stand's boxes.
    {"PriceTakesDigitsAndPointsOnly", {"price 0 $1,234.50"}, {{"/concessions/0/price", 1234.5}}},
    {"PriceDropsTheMinusSign", {"price 0 -2"}, {{"/concessions/0/price", 2}}},
    {"PriceWithoutDigitsIsRefused", {"price 0 -2", "price 0 free"}, {{"/concessions/0/price", 2}}},
    {"StockTakesTheLeadingNumber", {"stock 1 -20abc"}, {{"/concessions/1/buypermonth", -20}}},
    {"StockRoundsHalfToEvenDown", {"stock 1 2.5"}, {{"/concessions/1/buypermonth", 2}}},
    {"StockRoundsHalfToEvenUp", {"stock 1 3.5 units"}, {{"/concessions/1/buypermonth", 4}}},
    {"QualityIsClampedHigh", {"quality 2 5"}, {{"/concessions/2/quality", 2}}},
    {"QualityZero", {"quality 2 0"}, {{"/concessions/2/quality", 0}}},
    {"NoItemFive", {"quality 5 1"}, {}, Fails::Script},
    {"NoItemMinusOne", {"price -1 3"}, {}, Fails::Script},
    {"ItemMustBeANumber", {"stock x 3"}, {}, Fails::Script},
    {"PriceNeedsAValue", {"price 1"}, {}, Fails::Script},
    // Movies and showtimes.
    {"TicketPrices",
     {"ticket 0 $7.25", "ticket 1 abc", "ticket 2", "ticket 4 9"},
     {{"/ticketPrice", json{7.25, 0.0, 0.0}}}},
    {"BookingShowtimes",
     {"buymovie 1", "buymovie 1", "select 0", "show 0 3 4", "show 2 5", "stop 4", "matinee 3",
      "ads 3 2"},
     {{"/myMovies#", 2},
      {"/myMovies/0/Num", 1},
      {"/myMoviesSelected", 0},
      {"/myMovies/1/Running", true},
      {"/myMovies/0/Running", false}, // stopped on 4, though 3 still shows it
      {"/showtimes/2/movie", 1},
      {"/showtimes/2/matinee", true},
      {"/showtimes/2/ads", 2},
      {"/showtimes/3/movie", 0},
      {"/showtimes/4/movie", 2}}},
    {"SellingAMovieClearsAndRenumbersTheShowtimes",
     {"buymovie 1", "buymovie 1", "show 1 3", "show 2 5", "select 0", "sellmovie"},
     {{"/myMovies#", 1}, {"/showtimes/2/movie", 0}, {"/showtimes/4/movie", 1}}},
    {"SelectWithoutAnOwnMovie", {"select 0"}, {}, Fails::Script},
    {"BuyMovieBeyondTheOffer", {"buymovie 99"}, {}, Fails::Script},
    {"ShowAMovieNotOwned", {"show 3 1"}, {}, Fails::Script},
    {"ShowtimeNine", {"show 0 9"}, {}, Fails::Script},
    {"StopShowtimeZero", {"stop 0"}, {}, Fails::Script},
    {"MatineeNine", {"matinee 9"}, {}, Fails::Script},
    {"AdsOnShowtimeZero", {"ads 0 1"}, {}, Fails::Script},
    {"AdsMustBeANumber", {"ads 1 x"}, {}, Fails::Script},
    {"AHugeAdCountIsAnOverflow", {"ads 1 40000"}, {}, Fails::Game},
    // The staff.
    {"HiringTakesTheTopApplicants",
     {"hire 1", "hire 1"},
     {{"/employees#", 2}, {"/employees/1/num", 2}, {"/hire#", 8}}},
    {"AssignUpIsAlwaysAllowed",
     {"hire 1", "assign 1 0", "assign 1 7"},
     {{"/positions/6/myEmployee", 1}}},
    {"WageFromTheInputBox", {"input 9.25", "wage 2"}, {{"/positions/1/wage", 9.25}}},
    {"FiringRenumbersAndEmptiesThePost",
     {"hire 1", "hire 1", "assign 1 7", "fire 1"},
     {{"/employees#", 1}, {"/employees/0/num", 1}, {"/positions/6/myEmployee", 0}}},
    {"HireBeyondTheList", {"hire 11"}, {}, Fails::Script},
    {"AssignToPostEight", {"hire 1", "assign 1 8"}, {}, Fails::Script},
    {"AssignNobody", {"assign 5 1"}, {}, Fails::Script},
    {"WageOfPostZero", {"wage 0"}, {}, Fails::Script},
    // The arcade.
    {"ArrangingAMachine",
     {"buygame 1", "rename 1 Big  Alpha ", "playprice 1 4", "cabinet 1 5", "move 1 5000.5 40 0.5 0",
      "autorepair 1"},
     {{"/autoRepair", true},
      {"/myGames/0/Name", "Big  Alpha "},
      {"/myGames/0/PricePerPlay", 4},
      {"/myGames/0/CabinetImageFileNumber", 5},
      {"/myGames/0/left", 5600},
      {"/myGames/0/top", 1840}}},
    {"SellingAMachineClosesTheRoomUp",
     {"buygame 1", "buygame 1", "move 2 100 0 0 0", "sellgame 1"},
     {{"/myGames#", 1}, {"/myGames/0/Num", 1}, {"/myGames/0/left", 700}}},
    {"AutorepairTakesZeroOrOne", {"autorepair 2"}, {}, Fails::Script},
    {"MoveNeedsNumbers", {"buygame 1", "move 1 10 x 0 0"}, {}, Fails::Script},
    {"RenameNeedsAName", {"buygame 1", "rename 1"}, {}, Fails::Script},
    {"SellingAMissingMachineIsTheGamesFault", {"sellgame 9"}, {}, Fails::Game},
    // Promotions.
    {"PromotionsAddAndDrop",
     {"promo add 4", "promo add 4", "promo add 0", "promo drop 4"},
     {{"/promotions/running#", 5}, {"/promotions/running/4", 1}, {"/promotions/running/0", 1}}},
    {"DropAllPromotions",
     {"promo add 4", "promo add 0", "promo dropall"},
     {{"/promotions/running/4", 0}, {"/promotions/running/0", 0}}},
    {"NoMediumFive", {"promo add 5"}, {}, Fails::Script},
    {"PromoAddNeedsAMedium", {"promo add"}, {}, Fails::Script},
    {"PromoBuyIsNoCommand", {"promo buy 1"}, {}, Fails::Script},
    {"DropAllTakesNoMedium", {"promo dropall 1"}, {}, Fails::Script},
    // The bank.
    {"ALoanAsTyped", {"loan $20,000 10"}, {{"/loan/loanAmount", 20000}, {"/loan/payPlan", 10}}},
    {"ALoanNeedsBothBoxes", {"loan 5000"}, {}, Fails::Script},
    // The building's buttons.
    {"RenovatingAWornHouse", {"day 28", "renovate"}, {{"/building/condition", 100}}},
};

struct CommandTable : SimScenario, ::testing::WithParamInterface<CommandCase> {};

TEST_P(CommandTable, StateAfterTheLines) {
    const CommandCase& c = GetParam();
    start(3);
    const json before = state();
    for (std::size_t i = 0; i < c.lines.size(); ++i) {
        const bool last = i + 1 == c.lines.size();
        if (last && c.fails == Fails::Script) {
            EXPECT_THROW(run(c.lines[i]), sim::ScriptError) << c.lines[i];
        } else if (last && c.fails == Fails::Game) {
            EXPECT_THROW(run(c.lines[i]), GameError) << c.lines[i];
        } else {
            ASSERT_NO_THROW(run(c.lines[i])) << c.lines[i];
        }
    }
    expectChecks(before, state(), c.checks);
}

INSTANTIATE_TEST_SUITE_P(Lines, CommandTable, ::testing::ValuesIn(commandCases),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
