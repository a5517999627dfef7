// The simulator: a table of scripts, each run as zorvane-sim runs it, with the exit status,
// the output and what the game's state shows afterwards; then whole runs of their own.
#include "Simulator.h"
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

// A script run on a game of seed 3. A script that fails (status 2) must name its last line.
struct RunCase {
    const char* name;
    std::vector<std::string> script;
    const char* checks = "{}"; // of the state after the run
    int status = 0;
    std::vector<std::string> errHas = {};
    std::vector<std::string> outHas = {};
    std::vector<std::pair<std::string, std::string>> math = {};
    bool quiet = true;
    bool stateShown = true; // the script's last "state" printed
};

const RunCase runCases[] = {
    // The run itself.
    {.name = "EchoesTheLogAndTheQuestions",
     .script = {"answer cancel", "quit", "day"},
     .outHas = {" -- Another day has arrived --\n",
                "ask: Save your theater before quitting? -> cancel\n"},
     .quiet = false,
     .stateShown = false},
    {.name = "QuittingEndsTheRunWithStatusZero",
     .script = {"answer no", "quit", "day 5", "state"},
     .outHas = {"process ended: "},
     .stateShown = false},
    {"ABadLineIsStatusTwoAndNamesTheLine", {"day", "# fine", "dance 3"}, "{}", 2},
    {"ABadNumberIsStatusTwo", {"day x"}, "{}", 2},
    {"AMissingWordIsStatusTwo", {"speed"}, "{}", 2},
    {"NoThirteenthMonthBox", {"monthfunds 12"}, "{}", 2},
    {.name = "AFatalErrorIsStatusSeventy",
     .script = {"day"},
     .status = 70,
     .errHas = {"fatal: ", "'gamespeed1': overflow: 99999"},
     .math = {{"gamespeed1", "99999"}}},
    {.name = "AnAnswerAtTheTopServesStartUp",
     .script = {"answer yes", "state"},
     .outHas = {"{"},
     .math = {{"mathver", "1.0"}}},
    {.name = "ANoAtStartUpEndsTheProcess",
     .script = {"answer no", "state"},
     .outHas = {"process ended"},
     .math = {{"mathver", "1.0"}},
     .stateShown = false},
    // Not a game error: a name typed with a byte that is no UTF-8 cannot go into the JSON.
    {"AnyErrorAtTheTopIsFatal", {"buygame 1", "rename 1 caf\xe9", "state"}, "{}", 70, {"fatal: "}},
    // The stand's boxes.
    {"PriceTakesDigitsAndPointsOnly", {"price 0 $1,234.50"}, R"({"/concessions/0/price": 1234.5})"},
    {"PriceWithoutDigitsIsRefused",
     {"price 0 -2", "price 0 free"},
     R"({"/concessions/0/price": 2})"},
    {"StockAsTheStandScreenReadsIt", {"stock 1 -2.5abc"}, R"({"/concessions/1/buypermonth": -2})"},
    {"QualityIsClampedHigh", {"quality 2 5"}, R"({"/concessions/2/quality": 2})"},
    {"NoItemFive", {"quality 5 1"}, "{}", 2},
    {"NoItemMinusOne", {"price -1 3"}, "{}", 2},
    {"ItemMustBeANumber", {"stock x 3"}, "{}", 2},
    {"PriceNeedsAValue", {"price 1"}, "{}", 2},
    // Movies and showtimes.
    {"TicketPrices",
     {"ticket 0 $7.25", "ticket 1 abc", "ticket 2", "ticket 4 9"},
     R"({"/ticketPrice": [7.25, 0, 0]})"},
    // Movie 1 stopped on 4 shows no more as running, though showtime 3 still shows it.
    {"BookingShowtimes",
     {"buymovie 1", "buymovie 1", "select 0", "show 0 3 4", "show 2 5", "stop 4", "matinee 3",
      "ads 3 2"},
     R"({"/myMovies#": 2, "/myMovies/0/Num": 1, "/myMoviesSelected": 0,
         "/myMovies/1/Running": true, "/myMovies/0/Running": false, "/showtimes/2/movie": 1,
         "/showtimes/2/matinee": true, "/showtimes/2/ads": 2, "/showtimes/3/movie": 0,
         "/showtimes/4/movie": 2})"},
    {"SellingAMovieClearsAndRenumbersTheShowtimes",
     {"buymovie 1", "buymovie 1", "show 1 3", "show 2 5", "select 0", "sellmovie"},
     R"({"/myMovies#": 1, "/showtimes/2/movie": 0, "/showtimes/4/movie": 1})"},
    {"SelectWithoutAnOwnMovie", {"select 0"}, "{}", 2},
    {"BuyMovieBeyondTheOffer", {"buymovie 99"}, "{}", 2},
    {"ShowAMovieNotOwned", {"show 3 1"}, "{}", 2},
    {"ShowtimeNine", {"show 0 9"}, "{}", 2},
    {"StopShowtimeZero", {"stop 0"}, "{}", 2},
    {"MatineeNine", {"matinee 9"}, "{}", 2},
    {"AdsOnShowtimeZero", {"ads 0 1"}, "{}", 2},
    {"AdsMustBeANumber", {"ads 1 x"}, "{}", 2},
    {"AHugeAdCountIsAnOverflow", {"ads 1 40000"}, "{}", 70, {"fatal: overflow: 40000"}},
    // The staff.
    {"HiringTakesTheTopApplicants",
     {"hire 1", "hire 1"},
     R"({"/employees#": 2, "/employees/1/num": 2, "/hire#": 8})"},
    {"AssignUpIsAlwaysAllowed",
     {"hire 1", "assign 1 0", "assign 1 7"},
     R"({"/positions/6/myEmployee": 1})"},
    {"WageFromTheInputBox", {"input 9.25", "wage 2"}, R"({"/positions/1/wage": 9.25})"},
    {"FiringRenumbersAndEmptiesThePost",
     {"hire 1", "hire 1", "assign 1 7", "fire 1"},
     R"({"/employees#": 1, "/employees/0/num": 1, "/positions/6/myEmployee": 0})"},
    {"HireBeyondTheList", {"hire 11"}, "{}", 2},
    {"AssignToPostEight", {"hire 1", "assign 1 8"}, "{}", 2},
    {"AssignNobody", {"assign 5 1"}, "{}", 2},
    {"WageOfPostZero", {"wage 0"}, "{}", 2},
    // The arcade.
    {"ArrangingAMachine",
     {"buygame 1", "rename 1 Big  Alpha ", "playprice 1 4", "cabinet 1 5", "move 1 5000.5 40 0.5 0",
      "autorepair 1"},
     R"({"/autoRepair": true, "/myGames/0/Name": "Big  Alpha ", "/myGames/0/PricePerPlay": 4,
         "/myGames/0/CabinetImageFileNumber": 5, "/myGames/0/left": 5600,
         "/myGames/0/top": 1840})"},
    {"SellingAMachineClosesTheRoomUp",
     {"buygame 1", "buygame 1", "move 2 100 0 0 0", "sellgame 1"},
     R"({"/myGames#": 1, "/myGames/0/Num": 1, "/myGames/0/left": 700})"},
    {"AutorepairTakesZeroOrOne", {"autorepair 2"}, "{}", 2},
    {"MoveNeedsNumbers", {"buygame 1", "move 1 10 x 0 0"}, "{}", 2},
    {"RenameNeedsAName", {"buygame 1", "rename 1"}, "{}", 2},
    {"SellingAMissingMachineIsTheGamesFault",
     {"sellgame 9"},
     "{}",
     70,
     {"fatal: subscript out of range: myGames(9)"}},
    // Promotions.
    {"PromotionsAddAndDrop",
     {"promo add 4", "promo add 4", "promo add 0", "promo drop 4"},
     R"({"/promotions/running#": 5, "/promotions/running/4": 1, "/promotions/running/0": 1})"},
    {"DropAllPromotions",
     {"promo add 4", "promo add 0", "promo dropall"},
     R"({"/promotions/running/4": 0, "/promotions/running/0": 0})"},
    {"NoMediumFive", {"promo add 5"}, "{}", 2},
    {"PromoAddNeedsAMedium", {"promo add"}, "{}", 2},
    {"PromoBuyIsNoCommand", {"promo buy 1"}, "{}", 2},
    {"DropAllTakesNoMedium", {"promo dropall 1"}, "{}", 2},
    // The bank.
    {"ALoanAsTyped", {"loan $20,000 10"}, R"({"/loan/loanAmount": 20000, "/loan/payPlan": 10})"},
    {"ALoanNeedsBothBoxes", {"loan 5000"}, "{}", 2},
    // The Goal menu: a goal picked while the game runs, played with its starting funds and shown.
    {.name = "TheGoalMenuPicksAGoalWithItsFundsAndShowsIt",
     .script = {"goal 2"},
     .checks = R"({"/funds": 45000, "/goalShown": 0, "/goal": {"selected": 2, "type": "funds",
                   "value": 100000, "deadline": 2, "achieved": false}})",
     .outHas = {"ask: Goal name: Shoestring Start | Type: funds | Value: 100000 | Deadline: 2"},
     .quiet = false},
    {"NoGoalBeyondTheList", {"goal 10"}, "{}", 2},
    {"NoGoalMinusOne", {"goal -1"}, "{}", 2},
    // The building's buttons.
    {"RenovatingAWornHouse", {"day 28", "renovate"}, R"({"/building/condition": 100})"},
};

// One whole run of `script`, as zorvane-sim runs it.
struct ScriptRun {
    int status;
    std::string out, err;
    json state; // of the game after the run
};

ScriptRun runScript(const DataFolder& data, const std::vector<std::string>& script,
                    std::uint64_t seed, const std::string& arg = "", bool quiet = true) {
    sim::SimOptions options;
    options.dataDir = data.path().string();
    options.seed = seed;
    options.arg = arg;
    options.quiet = quiet;
    std::ostringstream out, err;
    sim::Simulator simulator(options, out);
    const int status = simulator.run(script, err);
    return {status, out.str(), err.str(), sim::gameState(simulator.game())};
}

struct SimRuns : ::testing::TestWithParam<RunCase> {};

TEST_P(SimRuns, StatusOutputAndState) {
    const RunCase& c = GetParam();
    DataFolder data;
    for (const auto& [key, value] : c.math)
        data.setMath({{key, value}});
    const ScriptRun run = runScript(data, c.script, 3, "", c.quiet);
    ASSERT_EQ(run.status, c.status) << run.err;
    if (c.status == 2) {
        EXPECT_NE(run.err.find("script line " + std::to_string(c.script.size()) + ": "),
                  std::string::npos)
            << run.err;
    }
    for (const std::string& text : c.outHas)
        EXPECT_NE(run.out.find(text), std::string::npos) << text << "\n" << run.out;
    for (const std::string& text : c.errHas)
        EXPECT_NE(run.err.find(text), std::string::npos) << text << "\n" << run.err;
    if (!c.stateShown) {
        EXPECT_EQ(run.out.find("{"), std::string::npos); // nothing after the end ran
    }
    expectChecks(json::object(), run.state, c.checks);
}

INSTANTIATE_TEST_SUITE_P(Runs, SimRuns, ::testing::ValuesIn(runCases),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace

TEST(Simulator, AMathFileArgumentReplacesMathTxtAlsoOnReload) {
    DataFolder data;
    const std::string math = readFile(data.file("math.txt"));
    const std::string mth = data.write("custom.MTH", math + "\nfundsmin=-12345\ngamespeed1=7\n");
    data.setMath({{"gamespeed1", "5"}});
    const ScriptRun run = runScript(data, {"reloadmath"}, 1, "\"" + mth + "\"");
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.state["math"]["gamespeed"][1], 7);
    EXPECT_EQ(run.state["math"]["fundsmin"], -12345);
}

TEST(Simulator, TheDemoScriptHiresItsStaffInItsMonth) {
    DataFolder data;
    std::vector<std::string> script;
    std::istringstream in(readFile(data.file("demo.txt")));
    for (std::string line; std::getline(in, line);)
        script.push_back(line);
    const ScriptRun run = runScript(data, script, 2026, "", false);
    ASSERT_EQ(run.status, 0) << run.err;
    int hired = 0;
    for (std::size_t p = run.out.find(" is a new member"); p != std::string::npos;
         p = run.out.find(" is a new member", p + 1))
        ++hired;
    EXPECT_EQ(hired, 7);
    EXPECT_EQ(run.state["calendar"]["currentmonth"], 1);
}

TEST(Simulator, GraphRedrawAndAMonthsBox) {
    DataFolder data;
    const ScriptRun run = runScript(data, {"day 28", "graph", "monthfunds 10", "monthfunds 11"}, 1);
    const double january = run.state["histfunds"][0].get<double>();
    EXPECT_NE(run.out.find("ask: Funds for the month of Jan: " + formatMoney(january) + " -> ok\n"),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("ask: Funds for the month of Feb: $0 -> ok\n"), std::string::npos);
    const auto& graph = run.state["graph"];
    EXPECT_EQ(graph["graphMonth"][11], 1);
    EXPECT_EQ(graph["monthNames"][10], "Jan");
    EXPECT_EQ(graph["graphHigh"], std::max(january, run.state["funds"].get<double>()));
    EXPECT_EQ(graph["scale"].size(), 10u);
    EXPECT_EQ(graph["pointY"].size(), 12u);
}
