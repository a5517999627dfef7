#include "movies/Demand.h"
#include "core/GameError.h"
#include "core/MathVars.h"

#include <gtest/gtest.h>

using namespace zorvane;

namespace {

// Every term 0 but the one a test looks at.
struct DemandFormula : ::testing::Test {
    MathVars m;
    DemandInputs in;
    void SetUp() override { in.showtime = 4; }
    double demand() { return demandPercent(m, in); }
};

} // namespace

TEST_F(DemandFormula, BasePlusPopularity) {
    m.demandbase = 15;
    m.demandpop = 0.6;
    in.popularity = 50;
    EXPECT_DOUBLE_EQ(demand(), 45);
}

TEST_F(DemandFormula, PriceTakesAHundredTimesItsTerm) {
    m.demandbase = 80;
    m.demandprice = 0.06;
    in.price = 6;
    EXPECT_DOUBLE_EQ(demand(), 80 - 36);
}

TEST_F(DemandFormula, ShowtimeTermIsThisShowtimes) {
    m.demandbase = 50;
    m.demandshowtime = {0, -6, -4, -2, 0, 8, 12, 6, -4};
    in.showtime = 6;
    EXPECT_DOUBLE_EQ(demand(), 62);
    in.showtime = 1;
    EXPECT_DOUBLE_EQ(demand(), 44);
    in.showtime = 9;
    EXPECT_THROW(demand(), GameError);
}

TEST_F(DemandFormula, PromotionAndRatingAdd) {
    m.demandbase = 10;
    m.demandpromotion = 0.2;
    m.demandrating = 0.3;
    in.promoPoints = 40;
    in.rating = 50;
    EXPECT_DOUBLE_EQ(demand(), 10 + 8 + 15);
}

TEST_F(DemandFormula, ResultIsUnrounded) {
    m.demandbase = 15;
    m.demandpop = 0.6;
    m.demandprice = 0.06;
    in.popularity = 57;
    in.price = 4.5;
    EXPECT_NEAR(demand(), 15 + 34.2 - 27, 1e-9);
}

TEST_F(DemandFormula, ClampsToOneAndAHundred) {
    m.demandbase = 0.5;
    EXPECT_EQ(demand(), 1);
    m.demandbase = -40;
    EXPECT_EQ(demand(), 1);
    m.demandbase = 100.5;
    EXPECT_EQ(demand(), 100);
    m.demandbase = 1;
    EXPECT_EQ(demand(), 1);
    m.demandbase = 99.75;
    EXPECT_EQ(demand(), 99.75);
}

TEST_F(DemandFormula, DuplicateCutIsFlooredBeforeItIsMultiplied) {
    m.demandbase = 57;
    m.demanddupe = 15;
    in.duplicates = 2;
    // cut = Int(8.55) = 8; two other showings take 16. (Multiplying first would take 17.1.)
    EXPECT_DOUBLE_EQ(demand(), 41);
    in.duplicates = 0;
    EXPECT_DOUBLE_EQ(demand(), 57);
}

TEST_F(DemandFormula, DuplicatesWorkOnTheWholeRunningDemand) {
    // The cut comes last, on everything before it, the rating included.
    m.demandbase = 30;
    m.demandrating = 1;
    m.demanddupe = 50;
    in.rating = 20;
    in.duplicates = 1;
    EXPECT_DOUBLE_EQ(demand(), 25);
}

TEST_F(DemandFormula, NegativeDemandGivesANegativeCutThatRaisesIt) {
    m.demandbase = -7;
    m.demanddupe = 50;
    in.duplicates = 3;
    // cut = Int(-3.5) = -4 (away from zero), D = -7 + 12 = 5.
    EXPECT_DOUBLE_EQ(demand(), 5);
    in.duplicates = 1;
    EXPECT_EQ(demand(), 1); // -7 + 4 = -3, clamped
}

TEST_F(DemandFormula, DuplicateProductIs16Bit) {
    m.demandbase = 100;
    m.demanddupe = 32000;
    in.duplicates = 7; // cut 32000, 7 * 32000 does not fit
    EXPECT_THROW(demand(), GameError);
}

TEST(TicketSale, SeniorsSplitOffWhileTheyPayLessThanMatinee) {
    const std::array<double, 3> prices{6, 4.5, 4};
    const TicketSale standard = splitTicketSale(100, false, prices, 15);
    EXPECT_EQ(standard.seniors, 15);
    EXPECT_EQ(standard.regular, 85);
    EXPECT_DOUBLE_EQ(standard.income, 85 * 6 + 15 * 4);
    const TicketSale matinee = splitTicketSale(100, true, prices, 15);
    EXPECT_DOUBLE_EQ(matinee.income, 85 * 4.5 + 15 * 4);
}

TEST(TicketSale, SeniorPriceAtTheMatineePriceMeansNoSeniors) {
    const TicketSale sale = splitTicketSale(100, false, {6, 4.5, 4.5}, 15);
    EXPECT_EQ(sale.seniors, 0);
    EXPECT_DOUBLE_EQ(sale.income, 600);
    // Tested against the matinee price, not the standard one: a senior price above the
    // standard price still splits while it is below the matinee price.
    const TicketSale dear = splitTicketSale(100, false, {3, 5, 4}, 10);
    EXPECT_EQ(dear.seniors, 10);
    EXPECT_DOUBLE_EQ(dear.income, 90 * 3 + 10 * 4);
}

TEST(TicketSale, SeniorShareIsFloored) {
    const TicketSale sale = splitTicketSale(13, false, {6, 4.5, 4}, 15);
    EXPECT_EQ(sale.seniors, 1); // Int(1.95)
    EXPECT_EQ(sale.regular, 12);
}

TEST(TicketSale, TicketsTimesPercentIs16Bit) {
    EXPECT_THROW(splitTicketSale(3000, false, {6, 4.5, 4}, 15), GameError);
    EXPECT_NO_THROW(splitTicketSale(3000, false, {6, 4.5, 4.5}, 15)); // no split, no product
}
