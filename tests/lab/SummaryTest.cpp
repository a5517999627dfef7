#include "lab/Lab.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace zorvane::lab;

namespace {

GameResult game(std::uint64_t seed, LossRoad road, int lostOnDay, double startFunds,
                std::vector<double> monthEnds) {
    GameResult g;
    g.seed = seed;
    g.lost = road;
    g.lostOnDay = lostOnDay;
    g.startFunds = startFunds;
    for (double f : monthEnds)
        g.months.push_back({f, 30});
    return g;
}

std::string summary(const LabResult& r) {
    std::ostringstream out;
    printSummary(r, out);
    return out.str();
}

std::vector<double> months(int n, double funds) {
    return std::vector<double>(n, funds);
}

} // namespace

TEST(LossRoad, TheWatcherKeepsTheFirstLoss) {
    LossWatcher watcher;
    EXPECT_EQ(watcher.lost, LossRoad::None);
    watcher.showLose(zorvane::LoseReason::Loan);
    watcher.showLose(zorvane::LoseReason::Funds); // the picture again the next day: already lost
    EXPECT_EQ(watcher.lost, LossRoad::Loan);
}

TEST(LossRoad, AWatcherThatSawNoLossReportsNone) {
    LossWatcher watcher;
    watcher.logLine("It's hopeless!!!", false);
    EXPECT_EQ(watcher.lost, LossRoad::None);
}

TEST(Summary, CountsEachLossByItsRoadAndTheEarlyOnes) {
    LabResult r;
    r.options.strategy = "idle";
    r.options.years = 3;
    r.options.seed = 5;
    r.games = {game(5, LossRoad::Rent, 300, 1000, months(11, 100)),
               game(6, LossRoad::Rent, 800, 1000, months(28, 100)),
               game(7, LossRoad::Funds, 20, 1000, months(1, 100)),
               game(8, LossRoad::Loan, 671, 1000, months(24, 100)),
               game(9, LossRoad::None, -1, 1000, months(36, 5000))};
    const std::string text = summary(r);
    EXPECT_NE(text.find("strategy idle, 5 games, 3 year(s), seeds 5 to 9, goal 0\n"),
              std::string::npos)
        << text;
    // Day 671 is the last day of the second year, day 800 in the third.
    EXPECT_NE(text.find("lost: 4 (80.0%): funds 1, rent 2, loan 1; within two years 3\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("goal reached: 0 (0.0%)\n"), std::string::npos) << text;
    EXPECT_NE(text.find("fatal errors: 0\n"), std::string::npos) << text;
}

TEST(Summary, CountsGoalsAndNamesTheFirstFatalError) {
    LabResult r;
    r.options.strategy = "advisor";
    r.options.years = 1;
    r.options.seed = 1;
    r.options.goal = 3;
    r.games = {game(1, LossRoad::None, -1, 1000, months(12, 2000)),
               game(2, LossRoad::None, -1, 1000, months(12, 2000)),
               game(3, LossRoad::None, -1, 1000, months(4, 2000))};
    r.games[0].goalReached = true;
    r.games[1].goalReached = true;
    r.games[2].fatal = "overflow: stock of Popcorn";
    r.games[2].fatalOnDay = 120;
    const std::string text = summary(r);
    EXPECT_NE(text.find("goal reached: 2 (66.7%)\n"), std::string::npos) << text;
    EXPECT_NE(text.find("fatal errors: 1\n"), std::string::npos) << text;
    EXPECT_NE(text.find("first fatal (seed 3, day 120): overflow: stock of Popcorn\n"),
              std::string::npos)
        << text;
}

TEST(Summary, YearRowsTakeTheQuantilesOfTheYearEndFunds) {
    LabResult r;
    r.options.strategy = "advisor";
    r.options.years = 1;
    r.options.seed = 1;
    // Year-end funds 0, 1000, ..., 10000 over eleven games; two end above their start.
    for (int i = 0; i <= 10; ++i)
        r.games.push_back(game(static_cast<std::uint64_t>(i + 1), LossRoad::None, -1, 8500,
                               months(12, 1000.0 * i)));
    const std::string text = summary(r);
    EXPECT_NE(text.find("   1        1000      5000      9000  2\n"), std::string::npos) << text;
}

TEST(Summary, ALostGameCountsWithWhatItHadWhenItWasLost) {
    LabResult r;
    r.options.strategy = "idle";
    r.options.years = 2;
    r.options.seed = 1;
    r.games = {game(1, LossRoad::Rent, 100, 5000, {4000, 3000, 77})};
    const std::string text = summary(r);
    EXPECT_NE(text.find("   1          77        77        77  0\n"), std::string::npos) << text;
    EXPECT_NE(text.find("   2          77        77        77  0\n"), std::string::npos) << text;
}
