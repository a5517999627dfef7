#include "core/GameError.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct FinancesFixture : ::testing::Test {
    TempDir dir;
    TestGame game{dir.path().string()};
    Finances& f() { return game->finances; }
};

} // namespace

TEST_F(FinancesFixture, SpendRefusesWhenLessThanOneWouldRemain) {
    f().setFunds(100);
    EXPECT_FALSE(f().spend(99.5, "labor"));
    EXPECT_EQ(f().deplabor, 0);
    EXPECT_EQ(f().totalspent, 0);
    EXPECT_TRUE(f().spend(99, "labor"));
    EXPECT_EQ(f().funds, 1);
    EXPECT_EQ(f().deplabor, 99);
    EXPECT_TRUE(f().spend(0, "labor")); // exactly 1 remains: accepted
    f().setFunds(0.5);
    EXPECT_FALSE(f().spend(0, "labor"));  // below 1 even nothing is refused
    EXPECT_TRUE(f().spend(-10, "movie")); // a negative amount passes like any other
    EXPECT_EQ(f().funds, 10.5);
}

TEST_F(FinancesFixture, DepartmentWordsAndHistFunds) {
    f().setFunds(10000);
    f().spend(1, "ARCADES");
    f().spend(2, "arcade"); // no department, but counted in the total
    f().spend(4, "");
    f().spend(8, "Promotions");
    f().spend(16, "loan");
    f().spend(32, "concessions");
    f().spend(64, "movie");
    using Sums = std::vector<double>; // arcade, promotions, loan, concessions, movie, labor
    EXPECT_EQ(Sums({f().deparcade, f().deppromo, f().deploan, f().depconcessions, f().depmovie,
                    f().deplabor}),
              Sums({1, 8, 16, 32, 64, 0}));
    EXPECT_EQ(f().totalspent, 127);

    f().earn(100, "arcades"); // the income word has no s: no department
    f().earn(10, "arcade");
    f().earn(1, "ads");
    f().earn(1000, "MOVIE");
    EXPECT_EQ(Sums({f().incdeparcade, f().incdepmovie, f().incdepconcessions}),
              Sums({10, 1000, 0}));
    EXPECT_EQ(f().totalincome, 1111);
    EXPECT_EQ(f().funds, 10000 - 127 + 1111);
    EXPECT_EQ(f().getProfit(), "$984");
    // The month's balance is kept in histfunds, by month.
    f().setFunds(7);
    f().financesNextMonth(1);
    f().setFunds(8);
    f().financesNextMonth(12);
    f().setFunds(9);
    f().financesNextMonth(0); // wraps to the last month
    EXPECT_EQ(f().getHistFunds(0), 7);
    EXPECT_EQ(f().getHistFunds(11), 9);
    EXPECT_EQ(f().getHistFunds(12), 0);
    EXPECT_THROW(f().getHistFunds(13), GameError);
    EXPECT_THROW(f().getHistFunds(-1), GameError);
}
