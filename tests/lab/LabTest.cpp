// The lab plays whole games unattended: what it reports must be the game's own doing, the
// same for the same seed on any number of threads, and never a fatal error.
#include "lab/Lab.h"
#include "core/GameError.h"
#include "lab/PlayerView.h"
#include "lab/RandomStrategy.h"
#include "lab/Strategy.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace zorvane;
using namespace zorvane::lab;
using zorvane::test::DataFolder;
using zorvane::test::TestGame;

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

// Borrows on its first day, then throws the money away down to `keep` dollars.
class Spendthrift : public Strategy {
  public:
    explicit Spendthrift(double keep) : keep_(keep) {}
    void beforeDay(Game& game) override {
        if (!borrowed_)
            playerView::takeLoan(game, 30000, 6);
        borrowed_ = true;
        const double funds = game.finances.getFunds();
        if (funds > keep_)
            game.finances.spend(funds - keep_, "");
    }

  private:
    double keep_;
    bool borrowed_ = false;
};

} // namespace

TEST(LabGame, EachLossRoadIsReportedAsTheGameLostIt) {
    DataFolder data;
    const GameResult idle = playGame(options(data, "idle", 2), 3);
    EXPECT_EQ(idle.lost, LossRoad::Rent);
    EXPECT_TRUE(idle.fatal.empty()) << idle.fatal;
    EXPECT_GT(idle.lostOnDay, 0);

    Spendthrift broke(100);
    const GameResult funds = playGame(options(data, "spendthrift", 1), 1, broke);
    EXPECT_EQ(funds.lost, LossRoad::Funds);
    EXPECT_EQ(funds.lostOnDay, 0);

    // No rent and no floor on the funds: only the bank can end this game, at the third miss.
    DataFolder noRent;
    noRent.setMath({{"buildingrent", "0"}, {"fundsmin", "-1000000"}});
    Spendthrift debtor(1);
    const GameResult loan = playGame(options(noRent, "spendthrift", 1), 1, debtor);
    EXPECT_EQ(loan.lost, LossRoad::Loan);
    EXPECT_EQ(loan.lostOnDay / 28, 2);
}

TEST(LabGame, ThreadsDoNotChangeTheGames) {
    DataFolder data;
    LabOptions o = options(data, "random", 1);
    o.games = 4;
    o.seed = 11;
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

// The soak test: four months of random clicks on twenty seeds use every command family and
// never meet a fatal error; seed 1 played again ends with the same funds and the same moves.
TEST(RandomStrategy, PlaysEveryCommandFamilyNeverFatallyAndTheSameForTheSameSeed) {
    DataFolder data;
    std::map<std::string, int> tally, firstTally;
    double firstFunds = 0;
    for (std::uint64_t run = 1; run <= 21; ++run) {
        const std::uint64_t seed = run == 21 ? 1 : run;
        TestGame game(data.path().string(), seed);
        RandomStrategy player(seed);
        try {
            game->startup();
            game->startPlay(0);
            player.begin(*game);
            for (int d = 0; d < 4 * 28; ++d) {
                player.beforeDay(*game);
                game->calendar.nextDay();
            }
        } catch (const GameError& e) {
            ADD_FAILURE() << "seed " << seed << ": " << e.what();
        }
        if (run == 1) {
            firstFunds = game->finances.getFunds();
            firstTally = player.tally();
        } else if (run == 21) {
            EXPECT_EQ(game->finances.getFunds(), firstFunds);
            EXPECT_EQ(player.tally(), firstTally);
        }
        for (const auto& [command, count] : player.tally())
            tally[command] += count;
    }
    for (const std::string& command : RandomStrategy::commands())
        EXPECT_GT(tally[command], 0) << command;
}
