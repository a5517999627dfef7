#include "Simulator.h"
#include "core/Toolbox.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct SimRun {
    int status = 0;
    std::string out;
    std::string err;
};

SimRun simulate(const std::string& dataDir, const std::vector<std::string>& script,
                const std::string& arg = "", std::uint64_t seed = 1, bool quiet = true) {
    sim::SimOptions options;
    options.dataDir = dataDir;
    options.arg = arg;
    options.seed = seed;
    options.quiet = quiet;
    std::ostringstream out, err;
    sim::Simulator simulator(options, out);
    SimRun run;
    run.status = simulator.run(script, err);
    run.out = out.str();
    run.err = err.str();
    return run;
}

nlohmann::json lastState(const SimRun& run) {
    const std::string text = run.out;
    const std::size_t start = text.rfind("\n{", text.size() - 2);
    return nlohmann::json::parse(text.substr(start == std::string::npos ? 0 : start + 1));
}

} // namespace

TEST(Simulator, AMonthAfterStartUp) {
    DataFolder data;
    const SimRun run = simulate(data.path().string(), {"day 28", "state"});
    ASSERT_EQ(run.status, 0) << run.err;
    const auto state = lastState(run);
    EXPECT_EQ(state["calendar"]["currentmonth"], 1);
    EXPECT_EQ(state["calendar"]["currentweek"], 0);
    EXPECT_EQ(state["calendar"]["currentday"], 1);
    EXPECT_GT(state["histfunds"][0].get<double>(), 0);
    EXPECT_EQ(state["histfunds"][1], 0);
}

TEST(Simulator, SameSeedSameGame) {
    DataFolder data;
    const std::vector<std::string> script = {"day 60", "state"};
    const SimRun a = simulate(data.path().string(), script, "", 5);
    const SimRun b = simulate(data.path().string(), script, "", 5);
    EXPECT_EQ(a.out, b.out);
}

TEST(Simulator, EchoesTheLogAndTheQuestions) {
    DataFolder data;
    const SimRun run =
        simulate(data.path().string(), {"answer cancel", "quit", "day"}, "", 1, false);
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find(" -- Another day has arrived --\n"), std::string::npos);
    EXPECT_NE(run.out.find("ask: Save your theater before quitting? -> cancel\n"),
              std::string::npos);
}

TEST(Simulator, QuittingEndsTheRunWithStatusZero) {
    DataFolder data;
    const SimRun run = simulate(data.path().string(), {"answer no", "quit", "day 5", "state"});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("process ended: "), std::string::npos);
    EXPECT_EQ(run.out.find("{"), std::string::npos); // nothing after the end ran
}

TEST(Simulator, ABadScriptLineIsStatusTwoAndNamesTheLine) {
    DataFolder data;
    SimRun run = simulate(data.path().string(), {"day", "# fine", "dance 3"});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("script line 3"), std::string::npos) << run.err;
    run = simulate(data.path().string(), {"day x"});
    EXPECT_EQ(run.status, 2);
    run = simulate(data.path().string(), {"speed"});
    EXPECT_EQ(run.status, 2);
}

TEST(Simulator, AFatalErrorIsStatusSeventy) {
    DataFolder data;
    data.setMath({{"gamespeed1", "99999"}});
    const SimRun run = simulate(data.path().string(), {"day"});
    EXPECT_EQ(run.status, 70);
    EXPECT_EQ(run.err.rfind("fatal: ", 0), 0u) << run.err;
    EXPECT_NE(run.err.find("gamespeed1"), std::string::npos);
    // Not a GameError: a name typed with a byte that is no UTF-8 cannot go into the JSON.
    const SimRun odd = simulate(shippedData(), {"buygame 1", "rename 1 caf\xe9", "state"});
    EXPECT_EQ(odd.status, 70);
    EXPECT_EQ(odd.err.rfind("fatal: ", 0), 0u) << odd.err;
}

TEST(Simulator, AMathFileArgumentReplacesMathTxtAlsoOnReload) {
    DataFolder data;
    std::string math = readFile(data.file("math.txt"));
    const std::string mth = data.write("custom.MTH", math + "\nfundsmin=-12345\ngamespeed1=7\n");
    data.setMath({{"gamespeed1", "5"}});
    SimRun run = simulate(data.path().string(), {"reloadmath", "state"}, "\"" + mth + "\"");
    ASSERT_EQ(run.status, 0) << run.err;
    auto state = lastState(run);
    EXPECT_EQ(state["math"]["gamespeed"][1], 7);
    EXPECT_EQ(state["math"]["fundsmin"], -12345);
}

TEST(Simulator, AnswersAtTheTopServeStartUpQuestions) {
    DataFolder data;
    data.setMath({{"mathver", "1.0"}});
    SimRun run = simulate(data.path().string(), {"answer yes", "state"});
    EXPECT_EQ(run.status, 0) << run.err;
    run = simulate(data.path().string(), {"answer no", "state"});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("process ended"), std::string::npos);
    EXPECT_EQ(run.out.find("{"), std::string::npos);
}

TEST(Simulator, TheDemoScriptPlaysItsMonth) {
    DataFolder data;
    std::vector<std::string> script;
    std::istringstream in(readFile(data.file("demo.txt")));
    for (std::string line; std::getline(in, line);)
        script.push_back(line);
    script.push_back("state");
    const SimRun run = simulate(data.path().string(), script, "", 2026, false);
    ASSERT_EQ(run.status, 0) << run.err;
    int hired = 0;
    for (std::size_t p = run.out.find(" is a new member of the team.\n"); p != std::string::npos;
         p = run.out.find(" is a new member of the team.\n", p + 1))
        ++hired;
    EXPECT_EQ(hired, 7);
    EXPECT_EQ(lastState(run)["calendar"]["currentmonth"], 1);
}

TEST(Simulator, GraphRedrawAndAMonthsBox) {
    DataFolder data;
    SimRun run = simulate(data.path().string(),
                          {"day 28", "graph", "monthfunds 10", "monthfunds 11", "state"});
    ASSERT_EQ(run.status, 0) << run.err;
    const auto state = lastState(run);
    const double january = state["histfunds"][0].get<double>();
    EXPECT_NE(run.out.find("ask: Funds for the month of Jan: " + formatMoney(january) + " -> ok\n"),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("ask: Funds for the month of Feb: $0 -> ok\n"), std::string::npos);
    const auto& graph = state["graph"];
    EXPECT_EQ(graph["graphMonth"][11], 1);
    EXPECT_EQ(graph["monthNames"][10], "Jan");
    EXPECT_EQ(graph["graphHigh"], std::max(january, state["funds"].get<double>()));
    EXPECT_EQ(graph["scale"].size(), 10u);
    EXPECT_EQ(graph["pointY"].size(), 12u);
    run = simulate(data.path().string(), {"monthfunds 12"});
    EXPECT_EQ(run.status, 2);
}
