#include "MovieFixture.h"

#include "core/GameError.h"

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

TEST_F(MovieUnit, ClassicLevelRunsFromMinUpToShortOfMinPlusMaxPriceFollowsPopularity) {
    g().rng.force({0.0, 0.999});
    m().initalize(3, "Gamma");
    EXPECT_EQ(m().getClassic(), 5);
    m().initalize(3, "Gamma");
    EXPECT_EQ(m().getClassic(), 14); // Int(10 * 0.999 + 5): above movieclassicmax
    EXPECT_EQ(m().getMyNum(), 3);
    EXPECT_EQ(m().getMyTitle(), "Gamma");
    // The price follows popularity, floored and capped.
    m().setMyPopularity(57);
    EXPECT_EQ(m().getMyPrice(), 5700);
    EXPECT_THROW(m().setMyPopularity(328), GameError); // cannot be priced in 16 bits
    math().moviemaxpop = 90;
    m().setMyPopularity(44); // Int(4400 / 90) = 48, not 48.9
    EXPECT_EQ(m().getMyPrice(), 4800);
    m().setMyPopularity(95); // 105 percent: held at moviemaxprice
    EXPECT_EQ(m().getMyPrice(), 10000);
    math().moviemaxpop = 0;
    EXPECT_THROW(m().setMyPopularity(50), GameError);
}

// A bought movie's days: what it holds after `days` with the drop every `dropDays` days.
struct DropCase {
    const char* name;
    int pop0, classic, paid, dropDays;
    std::vector<double> draws; // forced; an empty list means no roll at all
    int days, pop, price;      // price -1: not looked at
    int minPop = 1;
};

const DropCase dropCases[] = {
    // No roll before the drop day; the price paid stands until the first drop, then it is
    // 55 * 100 / (100 - 1) percent of what was paid, floored.
    {"NoDropBeforeTheSeventhDay", 60, 5, 6000, 7, {}, 6, 60, 6000},
    {"FirstDropOnTheSeventhDay", 60, 5, 6000, 7, {0.5}, 7, 55, 3333},
    {"NextDropSevenDaysLater", 60, 5, 6000, 7, {0.5, 0.0}, 14, 54, 3272},
    {"DailyDrops", 60, 5, 6000, 1, {0.0, 0.0}, 2, 58, -1},
    {"DropDaysBelowOneNeverDrop", 60, 5, 6000, 0, {}, 30, 60, 6000},
    {"AtTheClassicLevelNoDropNorRoll", 20, 20, 900, 1, {}, 3, 20, 900},
    {"ClassicAbovePopularityLiftsItPriceUnchanged", 10, 30, 1000, 7, {}, 1, 30, 1000},
    // A drop of 8 passes below the classic level for one day; the classic level lifts it back.
    {"ADropMayPassBelowTheClassicLevel", 52, 50, 5000, 1, {0.99}, 1, 44, -1},
    {"TheClassicLevelLiftsItTheDayAfter", 52, 50, 5000, 1, {0.99}, 2, 50, -1},
    // Int(1.0101 % of 6000) = 60, below resalemin.
    {"PopularityStopsAtOneAndResaleminHoldsThePrice", 3, 0, 6000, 1, {0.99}, 1, 1, 250},
    // movieminpop narrows the span, not the popularity: 95 / 90 of the price paid.
    {"ResaleMayPassWhatWasPaid", 96, 5, 6000, 1, {0.0}, 1, 95, 6333, 10},
};

struct DropTable : MovieUnit, ::testing::WithParamInterface<DropCase> {};

TEST_P(DropTable, PopularityAndPriceAfterTheDays) {
    const DropCase& c = GetParam();
    math().movieminpop = c.minPop;
    const std::string paid = std::to_string(c.paid);
    loadInto(m(), "Pop=" + std::to_string(c.pop0) + "\r\nClassic=" + std::to_string(c.classic) +
                      "\r\nPrice=" + paid + "\r\nfirstPrice=" + paid + "\r\n");
    math().moviepopdropdays = c.dropDays;
    const auto draws = g().rng.draws();
    for (const double d : c.draws)
        g().rng.force(d);
    days(c.days);
    EXPECT_EQ(m().getMyPopularity(), c.pop);
    if (c.price >= 0) {
        EXPECT_EQ(m().getMyPrice(), c.price);
    }
    if (c.draws.empty()) {
        EXPECT_EQ(g().rng.draws(), draws);
    }
    EXPECT_EQ(g().rng.forcedLeft(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Days, DropTable, ::testing::ValuesIn(dropCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(MovieUnit, ProfitIsZeroUntilTheFirstTicket) {
    loadInto(m(), "Pop=60\r\nClassic=5\r\nPrice=6000\r\n");
    m().setFirstPrice(6000);
    // Income, today's income, today's tickets, tickets sold, profit.
    const auto figures = [&] {
        return std::vector<double>{m().getMyIncome(), m().getTodaysIncome(),
                                   static_cast<double>(m().getTodaysTickets()), m().getMySold(),
                                   m().getMyProfit()};
    };
    EXPECT_EQ(figures(), std::vector<double>({0, 0, 0, 0, 0}));
    m().sellTickets(300, 50);
    m().sellTickets(120, 20);
    EXPECT_EQ(figures(), std::vector<double>({420, 420, 70, 70, 420 - 6000}));
    days(1);
    EXPECT_EQ(figures(), std::vector<double>({420, 0, 0, 70, 420 - 6000}));
    m().sellTickets(0, 32767); // today's tickets are 16-bit
    EXPECT_THROW(m().sellTickets(0, 1), GameError);
}
