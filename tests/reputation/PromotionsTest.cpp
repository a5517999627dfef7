#include "core/GameError.h"
#include "reputation/ReputationTexts.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace zorvane;
using namespace zorvane::test;

namespace {

const char* const capMessage =
    "Could not add this promotion, hit maximum possible promotion level.";
const char* const stopMessage = "Couldn't afford to pay promotions, all promos stopped!!";

struct PromoFixture : ::testing::Test {
    TempDir dir;
    TestGame game{dir.path().string()};
    promoManager& promos() { return game->promos; }

    void SetUp() override {
        game.math("promo0=1; promo1=3; promo2=6; promo3=10; promo4=15; promocost0=18;"
                  "promocost1=45; promocost2=75; promocost3=110; promocost4=150; promomax=100;"
                  "inflation=3");
        game->finances.setFunds(10000);
        promos().promosSetup();
    }
    void add(int medium, int times) {
        for (int i = 0; i < times; ++i)
            promos().addPromo(medium);
    }
};

} // namespace

TEST_F(PromoFixture, SetUpNamesTheMediaAndTakesTheCostsThatTheYearInflates) {
    EXPECT_EQ(promos().promoName,
              (std::array<std::string, 5>{"Nickel", "Paper", "Radio", "Billboard", "TV"}));
    EXPECT_EQ(promos().promoCost[4], 150);
    const PromotionsView v = promotionsView(promos());
    EXPECT_EQ(v.pointLabels[0], "+1 Point");
    EXPECT_EQ(v.pointLabels[3], "+10 Points");
    EXPECT_EQ(v.costLabels[2], "$75");
    EXPECT_TRUE(v.rows.empty());
    EXPECT_EQ(v.currentPromoLevel, "0");
    EXPECT_EQ(v.totalDailyPayments, "$0");
    add(4, 2);
    add(1, 1);
    EXPECT_EQ(promos().getPromoPoints(), 33);
    EXPECT_EQ(promos().getPromoCost(), 345);
    EXPECT_EQ(promos().promoRunning[4], 2);
    promos().promosNextYear(); // costs grow by inflation
    EXPECT_DOUBLE_EQ(promos().promoCost[3], 113.3);
    EXPECT_DOUBLE_EQ(promos().promoCost[0], 18.54);
    EXPECT_EQ(promos().promoRunning[4], 2);
    EXPECT_EQ(promotionsView(promos()).costLabels[3], "$113.30");
}

TEST_F(PromoFixture, AnAdThatWouldPassTheCapIsRefusedOneThatReachesItIsNot) {
    add(4, 6);
    add(2, 1); // 96
    add(1, 1); // 99
    add(1, 1); // 102: refused
    EXPECT_EQ(promos().promoRunning[1], 1);
    EXPECT_EQ(game.screen.count(capMessage), 1);
    add(0, 1); // 100: exactly at promomax
    EXPECT_EQ(promos().getPromoPoints(), 100);
    add(0, 1); // 101: refused
    EXPECT_EQ(promos().promoRunning[0], 1);
    EXPECT_EQ(game.screen.count(capMessage), 2);
    EXPECT_EQ(promos().getPromoPoints(), 100);
    promos().dropAllPromos();
    game->math.promo[4] = 20000;
    game->math.promomax = 1e9;
    promos().addPromo(4);
    EXPECT_THROW(promos().addPromo(4), GameError); // past 16 bits of points
}

TEST_F(PromoFixture, AMediumWithoutPointsRunsWithoutLimitAndOffTheTable) {
    game->math.promo[0] = 0;
    add(4, 6);
    add(3, 1);
    add(0, 3);
    EXPECT_EQ(promos().promoRunning[0], 3);
    const PromotionsView v = promotionsView(promos());
    ASSERT_EQ(v.rows.size(), 2u);
    EXPECT_EQ(v.rows[0].promo, "Billboard");
    EXPECT_EQ(std::tie(v.rows[1].promo, v.rows[1].pts, v.rows[1].count, v.rows[1].price),
              std::tuple("TV", "90", "6", "$900"));
    EXPECT_EQ(v.currentPromoLevel, "100");
    EXPECT_EQ(v.totalDailyPayments, "$1,064"); // 900 + 110 + 3 * 18
}

TEST_F(PromoFixture, DropAndDropAll) {
    promos().dropPromo(2);
    EXPECT_EQ(game.screen.lines.back(), "You aren't running any Radio ads!");
    EXPECT_EQ(promos().promoRunning[2], 0);
    add(2, 2);
    promos().dropPromo(2);
    EXPECT_EQ(promos().promoRunning[2], 1);
    add(4, 1);
    promos().dropAllPromos();
    EXPECT_EQ(promos().getPromoPoints(), 0);
    EXPECT_THROW(promos().addPromo(5), GameError);
    EXPECT_THROW(promos().dropPromo(-1), GameError);
}

// The day's charge is paid under promotions, all or nothing: a refusal stops every ad, and
// with nothing running the message still comes below one dollar.
TEST_F(PromoFixture, ARefusedChargeStopsEveryAd) {
    add(4, 1);
    add(1, 1);
    game->finances.setFunds(195.5); // would leave 0.5
    promos().promosNextDay();
    EXPECT_EQ(game.screen.lines.back(), stopMessage);
    EXPECT_EQ(promos().promoRunning[4], 0);
    EXPECT_EQ(promos().promoRunning[1], 0);
    EXPECT_EQ(game->finances.deppromo, 0); // nothing is paid: all or nothing
    EXPECT_EQ(game->finances.funds, 195.5);

    game->finances.setFunds(196); // leaves exactly 1: paid
    add(4, 1);
    add(1, 1);
    promos().promosNextDay();
    EXPECT_EQ(promos().promoRunning[4], 1);
    EXPECT_DOUBLE_EQ(game->finances.funds, 1);
    EXPECT_DOUBLE_EQ(game->finances.deppromo, 195);
    promos().dropAllPromos();
    game->finances.setFunds(0.5);
    promos().promosNextDay();
    EXPECT_EQ(game.screen.count(stopMessage), 2);
}
