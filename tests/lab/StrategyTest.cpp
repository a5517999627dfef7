#include "lab/Strategy.h"
#include "lab/Lab.h"
#include "lab/PlayerView.h"
#include "lab/RandomStrategy.h"
#include "support/TestSupport.h"

#include "core/GameError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

using namespace zorvane;
using namespace zorvane::lab;
using zorvane::test::DataFolder;
using zorvane::test::TestGame;

namespace {

// A game after start-up and "Play !", with a strategy that has begun.
struct Played {
    TestGame game;
    std::unique_ptr<Strategy> strategy;

    Played(const DataFolder& data, const std::string& name, std::uint64_t seed)
        : game(data.path().string(), seed), strategy(makeStrategy(name, seed)) {
        game->startup();
        game->startPlay(0);
        strategy->begin(*game);
    }
    // The strategy's turn, then the day.
    void day() {
        strategy->beforeDay(*game);
        game->calendar.nextDay();
    }
};

// The nearest play price to a popularity, as the advisor teaches (75 plays at 75 cents).
int nearestPrice(const Game& game, int popularity) {
    int best = 1;
    for (int i = 2; i <= 4; ++i)
        if (std::abs(arcade::playPrice(game, i) - popularity / 100.0) <
            std::abs(arcade::playPrice(game, best) - popularity / 100.0))
            best = i;
    return best;
}

} // namespace

TEST(Strategies, TheLabKnowsThreePlayers) {
    const std::vector<std::string> names = strategyNames();
    EXPECT_EQ(names, (std::vector<std::string>{"idle", "advisor", "random"}));
    for (const std::string& name : names)
        EXPECT_NE(makeStrategy(name, 1), nullptr) << name;
    EXPECT_EQ(makeStrategy("cheater", 1), nullptr);
}

TEST(IdleStrategy, TouchesNothing) {
    DataFolder data;
    Played idle(data, "idle", 4);
    const double funds = idle.game->finances.getFunds();
    idle.strategy->beforeDay(*idle.game);
    EXPECT_EQ(idle.game->finances.getFunds(), funds);
    EXPECT_EQ(idle.game->employees.employeeCount(), 0);
    EXPECT_EQ(idle.game->movies.myMoviesCount(), 0);
}

TEST(AdvisorStrategy, FillsTheSevenPositionsWithinAFewDays) {
    DataFolder data;
    for (std::uint64_t seed = 1; seed <= 10; ++seed) {
        Played advisor(data, "advisor", seed);
        int day = 0;
        while (day < 10 && !view::vacantPositions(*advisor.game).empty()) {
            advisor.day();
            ++day;
        }
        EXPECT_TRUE(view::vacantPositions(*advisor.game).empty()) << "seed " << seed;
    }
}

TEST(AdvisorStrategy, HiresNobodyOverQualifiedAndMostlyTheReliable) {
    DataFolder data;
    Played advisor(data, "advisor", 2);
    for (int d = 0; d < 10; ++d)
        advisor.day();
    const employeeManager& staff = advisor.game->employees;
    int reliable = 0;
    for (int p = 1; p <= 7; ++p) {
        const employee& e = staff.getEmployee(staff.getPosition(p).getMyEmployee());
        EXPECT_LE(e.exp, p) << e.name;
        reliable += e.rel >= 7;
    }
    EXPECT_GE(reliable, 5);
}

TEST(AdvisorStrategy, DoublesTheSnackOrders) {
    DataFolder data;
    Played advisor(data, "advisor", 1);
    for (int i = 0; i < ConcessionManager::itemCount; ++i)
        EXPECT_EQ(advisor.game->concessions.item(i).buypermonth,
                  2 * advisor.game->math.concessbuy[static_cast<std::size_t>(i)])
            << "item " << i;
}

TEST(AdvisorStrategy, NoMovieEverPlaysTwiceAndPromotionsStayWithinTheTop) {
    DataFolder data;
    Played advisor(data, "advisor", 3);
    for (int d = 0; d < 120; ++d) {
        advisor.strategy->beforeDay(*advisor.game);
        const MovieManager& mm = advisor.game->movies;
        std::set<int> seen;
        for (int s = 1; s <= 8; ++s) {
            const int m = mm.showtimeAt(s).getMyMovie();
            if (m > 0) {
                EXPECT_TRUE(seen.insert(m).second) << "movie " << m << " twice on day " << d;
            }
        }
        // Every movie it owns is on a showtime.
        EXPECT_EQ(static_cast<int>(seen.size()), std::min(8, mm.myMoviesCount())) << d;
        EXPECT_LE(advisor.game->promos.pointsNow(), advisor.game->math.promomax);
        advisor.game->calendar.nextDay();
    }
    EXPECT_EQ(advisor.game->movies.myMoviesCount(), 8);
}

TEST(AdvisorStrategy, KeepsTheMatineesCheap) {
    DataFolder data;
    Played advisor(data, "advisor", 5);
    for (int d = 0; d < 400; ++d) {
        advisor.day();
        const MovieManager& mm = advisor.game->movies;
        ASSERT_LT(mm.getTicketPrice(1), mm.getTicketPrice(0)) << d;
        ASSERT_TRUE(mm.showtimeAt(1).isMatinee());
        ASSERT_TRUE(mm.showtimeAt(2).isMatinee());
    }
    // A year on, the prices have kept up with inflation.
    EXPECT_GT(advisor.game->movies.getTicketPrice(0), advisor.game->math.ticketsstandard);
}

TEST(AdvisorStrategy, KeepsFourMachinesPricedNearTheirPopularityAndReplacesTheFaded) {
    DataFolder data;
    Played advisor(data, "advisor", 1);
    for (int d = 0; d < 150; ++d) {
        advisor.day();
        ASSERT_LE(advisor.game->arcades.getMachineCount(), 4) << d;
    }
    advisor.strategy->beforeDay(*advisor.game);
    const arcadeManager& room = advisor.game->arcades;
    ASSERT_EQ(room.getMachineCount(), 4);
    for (int n = 1; n <= room.getMachineCount(); ++n) {
        const arcade& machine = room.myGameAt(n);
        EXPECT_FALSE(machine.getIamBroke()) << machine.Name;
        EXPECT_EQ(machine.PricePerPlay, nearestPrice(*advisor.game, machine.getPop()))
            << machine.Name;
    }
    // Three years on, machines fade by 1 to 4 points a month: only replaced ones stay popular.
    for (int d = 0; d < 3 * 336; ++d)
        advisor.day();
    advisor.strategy->beforeDay(*advisor.game);
    ASSERT_EQ(room.getMachineCount(), 4);
    for (int n = 1; n <= room.getMachineCount(); ++n)
        EXPECT_GE(room.myGameAt(n).getPop(), 30) << room.myGameAt(n).Name;
}

TEST(AdvisorStrategy, RepairsABrokenHouseBeforeTheDay) {
    DataFolder data;
    Played advisor(data, "advisor", 1);
    for (int d = 0; d < 30; ++d)
        advisor.day();
    advisor.game->building.condition = 60; // worn enough that a repair costs something
    advisor.game->building.breakDown();
    ASSERT_FALSE(advisor.game->building.isInOrder());
    advisor.strategy->beforeDay(*advisor.game);
    EXPECT_TRUE(advisor.game->building.isInOrder());
}

TEST(AdvisorStrategy, BorrowsNothingWhenTheMoneyIsThere) {
    DataFolder data;
    data.setMath({{"initfunds", "1000000"}});
    Played advisor(data, "advisor", 1);
    for (int d = 0; d < 90; ++d) {
        advisor.day();
        ASSERT_EQ(advisor.game->loans.loanAmount, 0) << d;
    }
}

TEST(AdvisorStrategy, BorrowsToSurviveAndSurvives) {
    DataFolder data;
    data.setMath({{"initfunds", "25000"}});
    Played advisor(data, "advisor", 1);
    int borrowedOn = -1;
    for (int d = 0; d < 60 && borrowedOn < 0; ++d) {
        const double funds = advisor.game->finances.getFunds();
        advisor.strategy->beforeDay(*advisor.game);
        if (advisor.game->loans.loanAmount > 0) {
            borrowedOn = d;
            // Only when a week of wages was no longer in the bank.
            EXPECT_LT(funds, 8 * view::dailyWages(*advisor.game) + 1000);
        }
        advisor.game->calendar.nextDay();
    }
    EXPECT_GE(borrowedOn, 1);
    EXPECT_EQ(advisor.game.screen.loseShown, 0);
}

TEST(RandomStrategy, PlaysEveryCommandFamilyAndNeverMeetsAFatalError) {
    DataFolder data;
    std::map<std::string, int> tally;
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        TestGame game(data.path().string(), seed);
        RandomStrategy player(seed);
        try {
            game->startup();
            game->startPlay(0);
            player.begin(*game);
            // Four game months, lost or not: the lost picture stops nobody.
            for (int d = 0; d < 4 * 28; ++d) {
                player.beforeDay(*game);
                game->calendar.nextDay();
            }
        } catch (const GameError& e) {
            ADD_FAILURE() << "seed " << seed << ": " << e.what();
        }
        for (const auto& [command, count] : player.tally())
            tally[command] += count;
    }
    for (const std::string& command : RandomStrategy::commands())
        EXPECT_GT(tally[command], 0) << command;
    for (const auto& [command, count] : tally)
        EXPECT_NE(std::find(RandomStrategy::commands().begin(), RandomStrategy::commands().end(),
                            command),
                  RandomStrategy::commands().end())
            << command;
}

TEST(RandomStrategy, TheSameSeedPlaysTheSameGame) {
    DataFolder data;
    double funds[2];
    std::map<std::string, int> tally[2];
    for (int run = 0; run < 2; ++run) {
        TestGame game(data.path().string(), 9);
        RandomStrategy player(9);
        game->startup();
        game->startPlay(0);
        for (int d = 0; d < 60; ++d) {
            player.beforeDay(*game);
            game->calendar.nextDay();
        }
        funds[run] = game->finances.getFunds();
        tally[run] = player.tally();
    }
    EXPECT_EQ(funds[0], funds[1]);
    EXPECT_EQ(tally[0], tally[1]);
}
