#include "MovieFixture.h"

#include "core/GameError.h"
#include "movies/Demand.h"

#include <tuple>

using namespace zorvane;
using namespace zorvane::test;

namespace {

// One own movie, "Alpha", at popularity 50, on a house of 200 seats with a rating of 0.
struct Shows : MovieFixture {
    void SetUp() override {
        MovieFixture::SetUp();
        mm().catalogueMovie(1).setMyPopularity(50);
        own({1});
        g().building.seating = 200;
        g().rating.currentRating = 0;
    }
    showtime& st(int s) { return mm().showtimeAt(s); }
    static constexpr double standardRoll = 0.5; // a percent roll of 51: standard price
    static constexpr double seniorRoll = 0.14;  // 15: a senior, at percentseniors 15
};

} // namespace

TEST_F(Shows, AdsCostPopularityOnlyAtTheirShowtimeAndNoMovieMeansNoDemand) {
    book(1, {3, 4});
    mm().setShowtimeAds(3, 4);
    EXPECT_EQ(st(3).getMoviePopularity(), 42);
    EXPECT_EQ(st(4).getMoviePopularity(), 50);
    EXPECT_EQ(mm().myMovieAt(1).getMyPopularity(), 50);
    mm().myMovieAt(1).setMyPopularity(9);
    mm().setShowtimeAds(3, 5);
    EXPECT_EQ(st(3).getMoviePopularity(), 1); // never below 1
    EXPECT_EQ(st(5).getMoviePopularity(), 0); // no movie
    const auto draws = g().rng.draws();       // and no movie means no demand and no roll
    EXPECT_EQ(mm().getDemand(5), 0);
    EXPECT_EQ(mm().getDemand(0), 0);
    EXPECT_EQ(mm().getDemand(-2), 0);
    EXPECT_EQ(g().rng.draws(), draws);
    EXPECT_THROW(mm().getDemand(9), GameError);
}

TEST_F(Shows, DemandGathersItsTermsInOrderAndDuplicatesCountEveryShowtimeUpToEight) {
    math().showtimes = 6;
    g().rating.currentRating = 40;
    book(1, {3});
    g().rng.force({standardRoll, standardRoll});
    // 15 + 50 * 0.6 = 45; - 0.06 * 6 * 100 = 9; showtime 3: 7; rating 40 * 0.3: 19.
    EXPECT_NEAR(mm().getDemand(3), 19, 1e-9);
    book(1, {7, 8}); // two others: 2 * Int(12 * 19 / 100) = 2 * 2 off
    EXPECT_NEAR(mm().getDemand(3), 15, 1e-9);
    EXPECT_EQ(g().rng.forcedLeft(), 0u);
}

// One show today: tickets (demand times seats, floored, 1 percent at least), seniors split off
// the price the show pays, the ads paid whatever the turnout under no department.
struct ShowCase {
    const char* name;
    int showtime, ads, popularity;
    double seniorPrice;
    std::vector<double> rolls;
    int tickets;
    double income, adsPaid;
};

// clang-format off
const ShowCase showCases[] = {
    // Popularity 50 - 4 = 46: 15 + 27.6 - 36 + 8 = 14.6 percent of 200 seats, floored: 29.
    // Seniors Int(29 * 15 / 100) = 4 at $4, the other 25 at $6.
    {"TodaysShow", 5, 2, 50, 4, {Shows::standardRoll}, 29, 25 * 6 + 4 * 4, 30},
    // 15 + 30 - 27 - 6 = 12 percent: 24 tickets; 3 seniors at $4, 21 at $4.50.
    {"MatineeSplitsSeniorsOff", 1, 0, 50, 4, {}, 24, 21 * 4.5 + 3 * 4, 0},
    // Demand sees the senior price, $4.50: 15 + 30 - 27 - 2 = 16 percent, all at standard.
    {"SeniorPriceEqualToMatineeNoSeniors", 3, 0, 50, 4.5, {Shows::seniorRoll}, 32, 32 * 6, 0},
    {"AdsPayWhateverTheTurnout", 3, 5, 1, 4, {Shows::standardRoll}, 2, 2 * 6, 5 * 15},
};
// clang-format on

struct ShowTable : Shows, ::testing::WithParamInterface<ShowCase> {};

TEST_P(ShowTable, TicketsIncomeAndAds) {
    const ShowCase& c = GetParam();
    mm().myMovieAt(1).setMyPopularity(c.popularity);
    mm().setTicketPrice(2, c.seniorPrice);
    book(1, {c.showtime});
    mm().setShowtimeAds(c.showtime, c.ads);
    const Finances before = g().finances;
    for (const double roll : c.rolls)
        g().rng.force(roll);
    st(c.showtime).doBusiness(g().building.getSeating());
    EXPECT_EQ(g().rng.forcedLeft(), 0u);
    EXPECT_EQ(st(c.showtime).getTodaysTicketSales(), c.tickets);
    EXPECT_DOUBLE_EQ(st(c.showtime).getTodaysIncome(), c.income);
    EXPECT_DOUBLE_EQ(g().finances.incdepmovie - before.incdepmovie, c.income);
    EXPECT_DOUBLE_EQ(g().finances.totalincome - before.totalincome, c.income + c.adsPaid);
    EXPECT_DOUBLE_EQ(g().finances.funds - before.funds, c.income + c.adsPaid);
    const Movie& movie = mm().myMovieAt(1);
    EXPECT_EQ(std::tuple(movie.getMyIncome(), movie.getTodaysTickets(), movie.getMySold()),
              std::tuple(c.income, c.tickets, c.tickets));
}

INSTANTIATE_TEST_SUITE_P(Shows, ShowTable, ::testing::ValuesIn(showCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Shows, ASecondRunStartsTheShowtimesFiguresAfresh) {
    book(1, {5});
    g().rng.force({standardRoll, standardRoll});
    st(5).doBusiness(g().building.getSeating());
    st(5).doBusiness(g().building.getSeating());
    EXPECT_EQ(st(5).getTodaysTicketSales(), 34);         // 15 + 30 - 36 + 8 = 17 percent of 200
    EXPECT_EQ(mm().myMovieAt(1).getTodaysTickets(), 68); // the movie's day adds up
    // A 1-percent house of fewer than 100 seats sells nothing, and the stand's share of an
    // audience of 0 is a division by zero.
    mm().myMovieAt(1).setMyPopularity(1);
    g().building.seating = 50;
    g().rng.force({standardRoll, standardRoll});
    EXPECT_THROW(st(5).doBusiness(g().building.getSeating()), GameError);
}

TEST_F(Shows, MatineePricesWithNoRollOthersRollOnceAShowTogglingTellsTheLog) {
    const auto draws = g().rng.draws();
    EXPECT_EQ(st(1).getMyPrice(), 4.5);
    EXPECT_EQ(g().rng.draws(), draws); // no roll
    g().rng.force({seniorRoll, 0.15});
    EXPECT_EQ(st(3).getMyPrice(), 4); // roll 15: senior
    EXPECT_EQ(st(3).getMyPrice(), 6); // roll 16: standard
    st(1).toggleMatinee();
    EXPECT_FALSE(st(1).isMatinee());
    EXPECT_EQ(logged("10 AM is now at standard prices"), 1);
    st(1).toggleMatinee();
    EXPECT_TRUE(st(1).isMatinee());
    EXPECT_EQ(logged("10 AM is now at matinee prices"), 1);
    EXPECT_TRUE(st(1).labelGrey());
    const auto lines = tg->screen.lines.size();
    st(3).setMatinee(1);
    EXPECT_TRUE(st(3).isMatinee());
    EXPECT_EQ(tg->screen.lines.size(), lines);
    EXPECT_FALSE(st(3).labelGrey());
    EXPECT_EQ(st(3).getMyPrice(), 4.5); // yet any value but 0 plays at matinee prices
}
