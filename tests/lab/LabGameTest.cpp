#include "lab/Lab.h"
#include "lab/PlayerView.h"
#include "lab/Strategy.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace zorvane;
using namespace zorvane::lab;
using zorvane::test::DataFolder;

namespace {

LabOptions options(const DataFolder& data, const std::string& strategy, int years) {
    LabOptions o;
    o.strategy = strategy;
    o.dataDir = data.path().string();
    o.years = years;
    o.games = 1;
    o.threads = 1;
    return o;
}

// Borrows on its first day and then throws the money away, down to `keep` dollars: a
// player who ends in the bank's hands.
class Spendthrift : public Strategy {
  public:
    explicit Spendthrift(double keep) : keep_(keep) {}
    void beforeDay(Game& game) override {
        if (!borrowed_) {
            view::takeLoan(game, 30000, 6);
            borrowed_ = true;
        }
        const double funds = game.finances.getFunds();
        if (funds > keep_)
            game.finances.spend(funds - keep_, "");
    }

  private:
    double keep_;
    bool borrowed_ = false;
};

const char* twoGoals = "<goal>\n"
                       "name=Easy Street\n"
                       "type=funds\n"
                       "value=1\n"
                       "deadline=3\n"
                       "</goal>\n"
                       "<goal>\n"
                       "name=Perfect Ten\n"
                       "type=rating\n"
                       "value=100\n"
                       "deadline=0\n"
                       "</goal>\n";

} // namespace

TEST(LabGame, ATheaterNobodyRunsIsLostByTheRent) {
    DataFolder data;
    const GameResult r = playGame(options(data, "idle", 2), 3);
    EXPECT_EQ(r.lost, LossRoad::Rent);
    EXPECT_TRUE(r.fatal.empty()) << r.fatal;
    EXPECT_GT(r.lostOnDay, 0);
    // Every month end up to the loss is on record, the month of the loss included.
    EXPECT_GE(static_cast<int>(r.months.size()), r.lostOnDay / 28);
    EXPECT_LE(static_cast<int>(r.months.size()), r.lostOnDay / 28 + 1);
    EXPECT_EQ(r.seed, 3u);
}

TEST(LabGame, FundsBelowTheFloorWhileInDebtAreLostByFunds) {
    DataFolder data;
    Spendthrift player(100);
    const GameResult r = playGame(options(data, "spendthrift", 1), 1, player);
    EXPECT_EQ(r.lost, LossRoad::Funds);
    EXPECT_EQ(r.lostOnDay, 0);
}

TEST(LabGame, MissedLoanPaymentsAreLostByTheLoan) {
    // No rent and no floor on the funds: only the bank can end this game.
    DataFolder data;
    data.setMath({{"buildingrent", "0"}, {"fundsmin", "-1000000"}});
    Spendthrift player(1);
    const GameResult r = playGame(options(data, "spendthrift", 1), 1, player);
    EXPECT_EQ(r.lost, LossRoad::Loan);
    // The third missed payment in a row, at the turn of the third month.
    EXPECT_EQ(r.lostOnDay / 28, 2);
}

TEST(LabGame, AGoalReachedIsCountedWithItsDay) {
    DataFolder data;
    data.write("goals.cfg", twoGoals);
    LabOptions o = options(data, "idle", 1);
    o.goal = 1;
    const GameResult easy = playGame(o, 1);
    EXPECT_TRUE(easy.goalReached);
    EXPECT_EQ(easy.goalReachedOnDay, 0);
    o.goal = 2;
    const GameResult hard = playGame(o, 1);
    EXPECT_FALSE(hard.goalReached);
    EXPECT_EQ(hard.goalReachedOnDay, -1);
}

TEST(LabGame, FreePlayReachesNoGoal) {
    DataFolder data;
    data.write("goals.cfg", twoGoals);
    const GameResult r = playGame(options(data, "idle", 1), 1);
    EXPECT_FALSE(r.goalReached);
}

TEST(LabGame, TheSummaryCountsTheGoalsOfTheGames) {
    DataFolder data;
    data.write("goals.cfg", twoGoals);
    LabOptions o = options(data, "idle", 1);
    o.games = 3;
    o.goal = 1;
    const LabResult r = runLab(o);
    std::ostringstream out;
    printSummary(r, out);
    EXPECT_NE(out.str().find("goal reached: 3 (100.0%)"), std::string::npos) << out.str();
}

TEST(LabGame, AnUnknownStrategyIsReportedNotPlayed) {
    DataFolder data;
    const GameResult r = playGame(options(data, "nobody", 1), 1);
    EXPECT_NE(r.fatal.find("nobody"), std::string::npos);
    EXPECT_TRUE(r.months.empty());
}

TEST(LabGame, ThreadsDoNotChangeTheGames) {
    DataFolder data;
    LabOptions o = options(data, "random", 1);
    o.games = 4;
    o.seed = 11;
    o.threads = 1;
    const LabResult one = runLab(o);
    o.threads = 2;
    const LabResult two = runLab(o);
    ASSERT_EQ(one.games.size(), two.games.size());
    for (std::size_t i = 0; i < one.games.size(); ++i) {
        EXPECT_EQ(one.games[i].seed, 11 + i);
        EXPECT_EQ(one.games[i].seed, two.games[i].seed);
        EXPECT_EQ(one.games[i].lost, two.games[i].lost);
        EXPECT_EQ(one.games[i].lostOnDay, two.games[i].lostOnDay);
        ASSERT_EQ(one.games[i].months.size(), two.games[i].months.size());
        for (std::size_t m = 0; m < one.games[i].months.size(); ++m)
            EXPECT_EQ(one.games[i].months[m].funds, two.games[i].months[m].funds);
    }
}

// The shipped balance: a theater left alone loses within two years, one run as the advisor
// teaches keeps going and ends its first year richer than it started.
TEST(LabBalance, LeftAloneTheShippedTheaterIsLostWithinTwoYears) {
    DataFolder data;
    for (std::uint64_t seed = 1; seed <= 5; ++seed) {
        const GameResult r = playGame(options(data, "idle", 2), seed);
        EXPECT_NE(r.lost, LossRoad::None) << "seed " << seed;
        EXPECT_LT(r.lostOnDay, 2 * 336) << "seed " << seed;
    }
}

TEST(LabBalance, TheAdvisorsTheaterEndsItsFirstYearRicher) {
    DataFolder data;
    for (std::uint64_t seed = 1; seed <= 5; ++seed) {
        const GameResult r = playGame(options(data, "advisor", 1), seed);
        EXPECT_EQ(r.lost, LossRoad::None) << "seed " << seed;
        EXPECT_TRUE(r.fatal.empty()) << r.fatal;
        ASSERT_EQ(r.months.size(), 12u) << "seed " << seed;
        EXPECT_GT(r.months.back().funds, r.startFunds) << "seed " << seed;
    }
}

// The CSV's month: its income less its spending is what the funds moved, and the offers'
// popularity is that of real titles.
TEST(LabGame, AMonthsFiguresAccountForEveryDollar) {
    DataFolder data;
    const GameResult r = playGame(options(data, "advisor", 1), 4);
    ASSERT_EQ(r.months.size(), 12u);
    double funds = r.startFunds;
    for (const MonthRecord& m : r.months) {
        const double income = m.incMovie + m.incArcade + m.incConcessions + m.incOther;
        const double spending = m.payLabor + m.payMovie + m.payPromo + m.payArcade +
                                m.payConcessions + m.payLoan + m.payRent + m.payOther;
        EXPECT_NEAR(m.funds - funds, income - spending, 0.01);
        funds = m.funds;
        EXPECT_GE(m.staff, 7);
        EXPECT_GT(m.wageBill, 0);
    }
    EXPECT_EQ(r.months[0].payRent, 7725); // the first month's rent, with its month of inflation
    EXPECT_EQ(r.weekOfferPops.size(), 48u);
    EXPECT_EQ(r.monthMarketPops.size(), 12u);
    for (double pop : r.weekOfferPops)
        EXPECT_TRUE(pop == -1 || (pop >= 1 && pop <= 100)) << pop; // -1: nothing affordable
    LabResult lab;
    lab.options.years = 1;
    lab.games = {r};
    EXPECT_GT(offerPopularity(lab, 1), 20);
    EXPECT_GT(marketPopularity(lab, 1), 20);
    EXPECT_EQ(offerPopularity(lab, 2), -1); // no game played a second year
}
