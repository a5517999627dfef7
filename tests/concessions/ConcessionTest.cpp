#include "StandFixture.h"

#include "concessions/ConcessionTexts.h"
#include "core/GameError.h"

#include <tuple>

using namespace zorvane;
using namespace zorvane::test;

TEST_F(StandFixture, InitTakesTheMathValuesAndTheFirstMonthIsBought) {
    const Concession& c = item(3);
    // The stock: the month step ran once at set-up.
    EXPECT_EQ(
        std::tuple(c.name, c.quality, c.price, c.cost, c.buypermonth, c.stock, c.thismonthsales),
        std::tuple("Hot Dog", 1, 3, 0.7, 10, 10, 0));
    EXPECT_EQ(c.qualityList, (std::vector<std::string>{"low 3", "mid 3", "high 3"}));
    // Five orders of 10 units at the base cost: no quality surcharge in the bill.
    EXPECT_DOUBLE_EQ(game->finances.depconcessions, 35);
    EXPECT_DOUBLE_EQ(game->finances.funds, 10000 - 35);
}

// A customer buys when the percent roll is at most 100 - price in cents * concessconsidercost
// + the quality's bonus, not rounded (quality 1's bonus is 0.5 here). A saved game may give a
// quality the screen never offers: 3 finds a bonus no key sets (0), 4 is beyond the table.
TEST_F(StandFixture, TheChanceToBuyTable) {
    game->math.concessconsiderqual[1] = 0.5;
    const struct {
        int quality;
        double price, draw;
        bool sells;
    } rows[] = {
        {1, 3, 0.395, true},     {1, 3, 0.405, false},    // 40.5: rolls 40 and 41
        {2, 3, 0.495, true},     {2, 3, 0.505, false},    // +10: 50
        {0, 3, 0.295, true},     {0, 3, 0.305, false},    // -10: 30
        {1, 2.25, 0.545, true},  {1, 2.25, 0.555, false}, // 55.5: rolls 55 and 56
        {1, 10, 0.0, false},                              // -99.5: not even roll 1
        {2, 0.01, 0.9999, true},                          // 109.8: even roll 100
        {3, 3, 0.395, true},     {3, 3, 0.405, false},    // 40
    };
    for (const auto& r : rows) {
        item(0).quality = r.quality;
        item(0).setPrice(r.price);
        const int before = item(0).todayssold;
        game->rng.force(r.draw);
        item(0).sell_consider();
        EXPECT_EQ(item(0).todayssold - before, r.sells ? 1 : 0)
            << r.quality << " " << r.price << " " << r.draw;
    }
    EXPECT_DOUBLE_EQ(item(0).getUnitCost(), 0.7 + 4 * 0.1); // four steps at quality 3
    item(0).quality = 4;
    EXPECT_THROW(item(0).sell_consider(), GameError);
}

// The day's figures clear with the day, the month's with the month.
TEST_F(StandFixture, ASaleBooksTheMarginUnderConcessions) {
    const double funds = game->finances.funds;
    item(0).sell();
    // Unit cost: 0.70 + (1 + 1) * 0.10 = 0.90, so the margin is 2.10.
    const Concession& c = item(0);
    EXPECT_EQ(std::tuple(c.stock, c.todayssold, c.thismonthsales), std::tuple(9, 1, 1));
    EXPECT_DOUBLE_EQ(c.todaysprofit, 2.1);
    EXPECT_DOUBLE_EQ(c.lastmonthincome, 2.1);
    EXPECT_DOUBLE_EQ(game->finances.incdepconcessions, 2.1);
    EXPECT_DOUBLE_EQ(game->finances.funds, funds + 2.1);
    item(0).setPrice(0.5); // below the unit cost: a negative amount
    item(0).sell();
    EXPECT_DOUBLE_EQ(game->finances.incdepconcessions, 1.7);
    item(0).nextDay();
    EXPECT_EQ(item(0).todayssold, 0);
    EXPECT_EQ(item(0).todaysprofit, 0);
    EXPECT_EQ(item(0).thismonthsales, 2);
    item(0).nextMonth();
    EXPECT_EQ(item(0).lastmonthsales, 2);
    EXPECT_EQ(item(0).thismonthsales, 0);
    EXPECT_EQ(item(0).lastmonthincome, 0);
}

TEST_F(StandFixture, TheLastUnitSellsAndTheNextCustomerIsToldOff) {
    item(0).stock = 1;
    game->rng.force({0.0, 0.0});
    item(0).sell_consider();
    item(0).sell_consider();
    EXPECT_EQ(item(0).stock, 0);
    EXPECT_EQ(item(0).todayssold, 1);
    EXPECT_EQ(game.screen.lines, (std::vector<std::string>{
                                     "I was unable to sell any Popcorn today, out of stock!!!"}));
    EXPECT_TRUE(game->logSlots[5]);
    game->resetLogSlots();
    item(0).setPrice(10); // a chance that fails tells nothing of the shortage
    game->rng.force(0.0);
    item(0).sell_consider();
    EXPECT_EQ(game.screen.lines.size(), 1u);
}

TEST_F(StandFixture, QualityIsClampedAndPriceMustBeAboveZero) {
    item(0).setQuality(5);
    EXPECT_EQ(item(0).getQuality(), 2);
    item(0).setQuality(-1);
    EXPECT_EQ(item(0).getQuality(), 0);

    game.screen.refreshed.clear();
    item(0).setPrice(0);
    EXPECT_EQ(item(0).price, 3);
    item(0).setPrice(-2);
    EXPECT_EQ(item(0).price, 3);
    // The row is shown again, so the box gets the old price back.
    EXPECT_EQ(game.screen.refreshed.front(), View::ConcessionListing);
    EXPECT_EQ(concessionListing(item(0), game->folder()).price, "$3");
    item(0).setPrice(2.5);
    EXPECT_EQ(concessionListing(item(0), game->folder()).price, "$2.50");
}

// The month's order is bought whole or not at all, and a dollar must remain even for an
// order of nothing; a negative order is taken as it stands.
TEST_F(StandFixture, TheMonthsPurchaseIsAllOrNothing) {
    game->finances.setFunds(7.5); // the bill is 7.00: less than 1 would remain
    item(0).buyConcessions();
    EXPECT_EQ(item(0).stock, 10);
    EXPECT_EQ(game.screen.lines.back(), "Unable to buy Popcorn this month, not enough money!!");
    EXPECT_TRUE(game->logSlots[6]);

    game->resetLogSlots();
    game->finances.setFunds(8);
    item(0).buyConcessions(); // leaves exactly 1: accepted
    EXPECT_EQ(item(0).stock, 20);
    EXPECT_DOUBLE_EQ(game->finances.funds, 1);

    game->resetLogSlots();
    item(0).setBuyQuant(0);
    game->finances.setFunds(0.5);
    item(0).buyConcessions();
    EXPECT_EQ(game.screen.count("Unable to buy Popcorn this month, not enough money!!"), 2);
    item(0).setBuyQuant(-4);
    game->finances.setFunds(10);
    item(0).buyConcessions();
    EXPECT_EQ(item(0).stock, 16);
    EXPECT_DOUBLE_EQ(game->finances.funds, 12.8);
    item(0).setBuyQuant(10);
    item(0).stock = 32760;
    EXPECT_THROW(item(0).buyConcessions(), GameError);
}

// What the "Buy per month" box orders for what a player typed: the leading number, ties to
// even, a minus kept; no digits up front is 0; past 16 bits is the overflow error.
TEST(ConcessionOrderText, LeadingNumberRoundedHalfToEven) {
    const struct {
        const char* typed;
        int units;
    } cases[] = {{"12", 12},   {"  2.5", 2}, {"3.5 boxes", 4}, {"-7", -7},      {"-2.5", -2},
                 {"1,000", 1}, {"$40", 0},   {"", 0},          {"32767", 32767}};
    for (const auto& c : cases)
        EXPECT_EQ(concessionOrderOf(c.typed), c.units) << c.typed;
    EXPECT_THROW(concessionOrderOf("32768"), GameError);
}
