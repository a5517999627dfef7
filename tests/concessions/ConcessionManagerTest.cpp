#include "StandFixture.h"

#include "concessions/ConcessionTexts.h"
#include "core/GameError.h"
#include "core/Text.h"

using namespace zorvane;
using namespace zorvane::test;

// One rule for the arcade's and the stand's visitors: share * 100 / crowd, kept on purpose,
// rounded half to even.
TEST(CrowdVisitors, FewerAsTheCrowdGrowsRoundedHalfToEven) {
    const int cases[][3] = {{100, 8, 8}, {200, 8, 4},  {50, 8, 16},  {1, 8, 800}, {320, 8, 2},
                            {200, 7, 4}, {1600, 8, 0}, {1599, 8, 1}, {300, 8, 3}};
    for (const auto& [crowd, share, visitors] : cases)
        EXPECT_EQ(visitorsOf(crowd, share), visitors) << crowd << " " << share;
    EXPECT_THROW(visitorsOf(0, 8), GameError); // a division by zero
}

// Each visitor considers every item once; a crowd that rounds to no visitor shows nothing.
TEST_F(StandFixture, EachVisitorConsidersEveryItemOnce) {
    for (int i = 0; i < 5; ++i)
        item(i).stock = 100;
    game.screen.refreshed.clear();
    const auto before = game->rng.draws();
    stand().doConcessionBusiness(1600); // 0.5 rounds to 0
    EXPECT_EQ(game->rng.draws(), before);
    EXPECT_TRUE(game.screen.refreshed.empty());
    allWant(4);
    stand().doConcessionBusiness(200); // 800 / 200: four visitors
    EXPECT_EQ(game->rng.draws() - before, 20u);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(item(i).todayssold, 4);
    EXPECT_GT(game.screen.refreshes(View::ConcessionTotals), 0);
    EXPECT_THROW(stand().doConcessionBusiness(0), GameError); // a crowd of none
}

TEST_F(StandFixture, AllOutOfStockGivesOneLineForTheLowestItem) {
    for (int i = 0; i < 5; ++i)
        item(i).stock = 0;
    allWant(2);
    stand().doConcessionBusiness(400); // two visitors
    EXPECT_EQ(game.screen.lines, (std::vector<std::string>{
                                     "I was unable to sell any Popcorn today, out of stock!!!"}));

    // The next day the slot is free again; now the first one short is Soda.
    game->resetLogSlots();
    item(0).stock = 10;
    allWant();
    stand().doConcessionBusiness(800);
    EXPECT_EQ(game.screen.lines.back(), "I was unable to sell any Soda today, out of stock!!!");
    EXPECT_EQ(game.screen.lines.size(), 2u);
}

// 50 points an item at quality 1, 100 at 2, the sum divided by four and floored; a quality 3
// from a saved game counts nothing.
TEST_F(StandFixture, QualityScoreDividesByFour) {
    const struct {
        const char* qualities; // of the five items
        int score;
    } rows[] = {{"22222", 125}, {"00000", 0}, {"00010", 12}, {"22010", 62}, {"32010", 37}};
    for (const auto& r : rows) {
        for (int i = 0; i < 5; ++i)
            item(i).quality = r.qualities[i] - '0';
        EXPECT_EQ(stand().getQualityScore(), r.score) << r.qualities;
    }
}

// The month's turn shows the month's income before it clears it, and buys the orders while
// the money lasts: here 7 + 7 leaves 1 and the third bill is refused, told once (the slot is
// shared by all five items).
TEST_F(StandFixture, TheMonthsIncomeIsShownBeforeItIsClearedAndMoneyLastsForTwoItems) {
    item(0).sell();
    item(1).sell();
    game->finances.setFunds(15);
    stand().concessionsNextMonth();
    EXPECT_EQ(concessionTotals(stand()).incomeLastMonth, "$4.20");
    EXPECT_EQ(item(0).lastmonthincome, 0);
    EXPECT_EQ(item(0).lastmonthsales, 1);
    EXPECT_EQ(item(0).thismonthsales, 0);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(item(i).stock, i < 2 ? 19 : 10) << i;
    EXPECT_DOUBLE_EQ(game->finances.funds, 1);
    EXPECT_EQ(game.screen.lines,
              (std::vector<std::string>{"Unable to buy Candy this month, not enough money!!"}));
}

TEST_F(StandFixture, SalesTotalsAreThoseOfTheLastCrowd) {
    for (int i = 0; i < 5; ++i)
        item(i).stock = 100;
    item(4).setPrice(1);                          // chance 80
    game->rng.force({0.0, 0.99, 0.0, 0.99, 0.0}); // items 0, 2 and 4 sell
    stand().doConcessionBusiness(800);
    ConcessionTotals t = concessionTotals(stand());
    EXPECT_EQ(t.totalMyCost, "$3.50"); // base costs, without the quality surcharge
    EXPECT_EQ(t.totalSold, "3");
    EXPECT_EQ(t.totalProfit, "$4.30"); // 2.10 + 2.10 + 0.10
    EXPECT_EQ(t.totalTotalCost, "$35");

    // A new day clears the rows; the totals row keeps its figures until the next crowd.
    stand().concessionsNextDay();
    EXPECT_EQ(item(0).todayssold, 0);
    EXPECT_EQ(concessionTotals(stand()).totalSold, "3");
}

TEST_F(StandFixture, ChangingAnOrderRebuildsTheTables) {
    game.screen.refreshed.clear();
    stand().setItemBuyQuant(2, 30);
    EXPECT_EQ(item(2).buypermonth, 30);
    EXPECT_EQ(game.screen.refreshes(View::ConcessionTables), 5);
    EXPECT_EQ(concessionTotals(stand()).totalTotalCost, "$49");
    EXPECT_THROW(stand().setItemBuyQuant(5, 1), GameError);
    EXPECT_THROW(stand().setItemQuality(-1, 1), GameError);
}

TEST_F(StandFixture, YearlyInflationOnEveryItem) {
    stand().concessionsNextYear();
    for (int i = 0; i < 5; ++i)
        EXPECT_DOUBLE_EQ(item(i).cost, 0.721); // the cost, never the price
    EXPECT_EQ(item(4).price, 3);
}
