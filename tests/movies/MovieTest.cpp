#include "MovieFixture.h"

#include "core/GameError.h"

#include <sstream>

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct MovieUnit : MovieFixture {
    std::unique_ptr<Movie> movie;
    void SetUp() override {
        MovieFixture::SetUp();
        movie = std::make_unique<Movie>(g());
    }
    Movie& m() { return *movie; }
    void days(int n) {
        for (int i = 0; i < n; ++i)
            m().nextDay();
    }
};

} // namespace

TEST_F(MovieUnit, ClassicLevelRunsFromMinUpToJustShortOfMinPlusMax) {
    g().rng.force({0.0, 0.999});
    m().initalize(3, "Gamma");
    EXPECT_EQ(m().getClassic(), 5);
    m().initalize(3, "Gamma");
    EXPECT_EQ(m().getClassic(), 14); // Int(10 * 0.999 + 5): above movieclassicmax
    EXPECT_EQ(m().getMyNum(), 3);
    EXPECT_EQ(m().getMyTitle(), "Gamma");
}

TEST_F(MovieUnit, PriceFollowsPopularityFlooredAndCapped) {
    m().setMyPopularity(57);
    EXPECT_EQ(m().getMyPrice(), 5700);
    math().moviemaxpop = 90;
    m().setMyPopularity(44); // Int(4400 / 90) = 48, not 48.9
    EXPECT_EQ(m().getMyPrice(), 4800);
    m().setMyPopularity(95); // 105 percent: held at moviemaxprice
    EXPECT_EQ(m().getMyPrice(), 10000);
}

TEST_F(MovieUnit, PopularityAbove327CannotBePriced) {
    EXPECT_THROW(m().setMyPopularity(328), GameError);
    math().moviemaxpop = 0;
    EXPECT_THROW(m().setMyPopularity(50), GameError);
}

TEST_F(MovieUnit, FirstDropComesOnTheSeventhDay) {
    loadInto(m(), "Pop=60\r\nClassic=5\r\nPrice=6000\r\nfirstPrice=6000\r\n");
    const auto draws = g().rng.draws();
    days(6);
    EXPECT_EQ(g().rng.draws(), draws); // no roll before the drop day
    EXPECT_EQ(m().getMyPopularity(), 60);
    EXPECT_EQ(m().getMyPrice(), 6000); // the price paid stands until the first drop
    g().rng.force(0.5);                // a drop of Int(8 * 0.5 + 1) = 5
    days(1);
    EXPECT_EQ(m().getMyDays(), 7);
    EXPECT_EQ(m().getMyPopularity(), 55);
    // 55 * 100 / (100 - 1) percent of what was paid, floored.
    EXPECT_EQ(m().getMyPrice(), 3333);
    g().rng.force(0.0);
    days(7);
    EXPECT_EQ(m().getMyPopularity(), 54);
}

TEST_F(MovieUnit, DropDaysOfOneDropsDailyAndBelowOneNever) {
    loadInto(m(), "Pop=60\r\nClassic=5\r\nPrice=6000\r\nfirstPrice=6000\r\n");
    math().moviepopdropdays = 1;
    g().rng.force({0.0, 0.0});
    days(2);
    EXPECT_EQ(m().getMyPopularity(), 58);
    math().moviepopdropdays = 0;
    const auto draws = g().rng.draws();
    days(30);
    EXPECT_EQ(m().getMyPopularity(), 58);
    EXPECT_EQ(g().rng.draws(), draws);
}

TEST_F(MovieUnit, AtItsClassicLevelAMovieNeitherDropsNorRolls) {
    loadInto(m(), "Pop=20\r\nClassic=20\r\nPrice=900\r\nfirstPrice=900\r\n");
    math().moviepopdropdays = 1;
    const auto draws = g().rng.draws();
    days(3);
    EXPECT_EQ(m().getMyPopularity(), 20);
    EXPECT_EQ(m().getMyPrice(), 900);
    EXPECT_EQ(g().rng.draws(), draws);
}

TEST_F(MovieUnit, ClassicAbovePopularityLiftsItWithThePriceUnchanged) {
    loadInto(m(), "Pop=10\r\nClassic=30\r\nPrice=1000\r\nfirstPrice=1000\r\n");
    days(1);
    EXPECT_EQ(m().getMyPopularity(), 30);
    EXPECT_EQ(m().getMyPrice(), 1000);
}

TEST_F(MovieUnit, ADropMayPassBelowTheClassicLevelForOneDay) {
    loadInto(m(), "Pop=52\r\nClassic=50\r\nPrice=5000\r\nfirstPrice=5000\r\n");
    math().moviepopdropdays = 1;
    g().rng.force(0.99); // a drop of 8
    days(1);
    EXPECT_EQ(m().getMyPopularity(), 44);
    days(1);
    EXPECT_EQ(m().getMyPopularity(), 50);
}

TEST_F(MovieUnit, PopularityStopsAtOneAndResaleminHoldsThePrice) {
    loadInto(m(), "Pop=3\r\nClassic=0\r\nPrice=6000\r\nfirstPrice=6000\r\n");
    math().moviepopdropdays = 1;
    g().rng.force(0.99);
    days(1);
    EXPECT_EQ(m().getMyPopularity(), 1);
    EXPECT_EQ(m().getMyPrice(), 250); // Int(1.0101 % of 6000) = 60, below resalemin
}

TEST_F(MovieUnit, ResaleMayPassWhatWasPaid) {
    // The popularity is not reduced by movieminpop, only the span is: 95 / 90 of the price.
    math().movieminpop = 10;
    loadInto(m(), "Pop=96\r\nClassic=5\r\nPrice=6000\r\nfirstPrice=6000\r\n");
    math().moviepopdropdays = 1;
    g().rng.force(0.0);
    days(1);
    EXPECT_EQ(m().getMyPopularity(), 95);
    EXPECT_EQ(m().getMyPrice(), 6333);
}

TEST_F(MovieUnit, ProfitIsZeroUntilTheFirstTicket) {
    loadInto(m(), "Pop=60\r\nClassic=5\r\nPrice=6000\r\n");
    m().setFirstPrice(6000);
    EXPECT_EQ(m().getMyProfit(), 0);
    m().sellTickets(300, 50);
    m().sellTickets(120, 20);
    EXPECT_EQ(m().getMyIncome(), 420);
    EXPECT_EQ(m().getTodaysIncome(), 420);
    EXPECT_EQ(m().getTodaysTickets(), 70);
    EXPECT_EQ(m().getMySold(), 70);
    EXPECT_EQ(m().getMyProfit(), 420 - 6000);
    days(1);
    EXPECT_EQ(m().getTodaysIncome(), 0);
    EXPECT_EQ(m().getTodaysTickets(), 0);
    EXPECT_EQ(m().getMyIncome(), 420);
    EXPECT_EQ(m().getMySold(), 70);
}

TEST_F(MovieUnit, TodaysTicketsAre16Bit) {
    m().sellTickets(0, 32767);
    EXPECT_THROW(m().sellTickets(0, 1), GameError);
}

TEST_F(MovieUnit, InflationRaisesThePriceNotWhatWasPaid) {
    loadInto(m(), "Price=1000\r\nfirstPrice=800\r\n");
    m().inflate();
    EXPECT_DOUBLE_EQ(m().getMyPrice(), 1030);
    EXPECT_EQ(m().getFirstPrice(), 800);
}
