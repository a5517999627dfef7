#include "MovieFixture.h"

#include "core/GameError.h"
#include "movies/movieTexts.h"

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct Texts : MovieFixture {
    void SetUp() override {
        setUpWith("Short\n"
                  "Exactly Thirty Characters Long\n"   // 30
                  "Thirty-One Characters Long Title\n" // 32
                  "Night of the Lepus\n");
        for (int i = 1; i <= 4; ++i)
            mm().catalogueMovie(i).setMyPopularity(10 * i);
    }
};

} // namespace

TEST_F(Texts, AnEmptyOfferHasNoHeader) {
    offer({});
    const GridText grid = buyMoviesGrid(mm());
    EXPECT_TRUE(grid.header.empty());
    EXPECT_TRUE(grid.rows.empty());
}

TEST_F(Texts, OfferRows) {
    offer({1, 4});
    const GridText grid = buyMoviesGrid(mm());
    EXPECT_EQ(grid.header, (std::vector<std::string>{"Movie Title", "Popularity", "Price"}));
    ASSERT_EQ(grid.rows.size(), 2u);
    EXPECT_EQ(grid.rows[0], (std::vector<std::string>{"Night of the Lepus", "40", "$4,000"}));
    EXPECT_EQ(grid.rows[1], (std::vector<std::string>{"Short", "10", "$1,000"}));
}

TEST_F(Texts, OwnListCutsLongTitlesAndShowsCents) {
    own({1, 2, 3});
    mm().myMovieAt(1).setMyPopularity(45); // the list shows whatever the price is now
    const auto lines = myMovieLines(mm());
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], "Short $4,500");
    EXPECT_EQ(lines[1], "Exactly Thirty Characters Long $2,000");
    EXPECT_EQ(lines[2], "Thirty-One Characters Lon... $3,000");
    math().inflation = 0.0333;
    mm().nextYearMovies();
    EXPECT_EQ(myMovieLines(mm())[0], "Short $4,501.50");
}

TEST_F(Texts, ShowtimeTable) {
    g().building.seating = 200;
    own({4});
    book(1, {5});
    mm().setShowtimeAds(5, 2);
    g().rng.force(0.5);
    mm().showtimeAt(5).doBusiness();
    const ShowtimeTableText table = showtimeTable(mm());
    const ShowtimeRowText& empty = table.rows[0];
    EXPECT_EQ(empty.showtime, "10 AM");
    EXPECT_TRUE(empty.matineeGrey);
    EXPECT_EQ(empty.title, "(No Movie)");
    EXPECT_EQ(empty.sold, "0");
    EXPECT_EQ(empty.income, "$0");
    EXPECT_EQ(empty.age, "0");
    EXPECT_EQ(empty.popularity, "0");
    const ShowtimeRowText& row = table.rows[4];
    EXPECT_EQ(row.showtime, "6 PM");
    EXPECT_FALSE(row.matineeGrey);
    EXPECT_EQ(row.title, "Night of the Lepus");
    EXPECT_EQ(row.ads, "2");
    // Popularity 40 - 4: 15 + 21.6 - 36 + 8 = 8.6 percent of 200 = 17 tickets.
    EXPECT_EQ(row.sold, "17");
    EXPECT_EQ(row.income, "$98"); // 15 at $6 and 2 seniors at $4
    EXPECT_EQ(row.age, "0");
    EXPECT_EQ(row.popularity, "36");
    EXPECT_EQ(table.totalSold, "17");
    EXPECT_EQ(table.totalIncome, "$98");
}

TEST_F(Texts, TableTotalIncomeIsShortMoney) {
    g().building.seating = 2000;
    mm().catalogueMovie(4).setMyPopularity(100);
    own({4});
    book(1, {5, 6});
    mm().setTicketPrice(2, 6); // no seniors: every ticket at $6
    g().rng.force({0.5, 0.5});
    mm().showtimeAt(5).doBusiness();
    mm().showtimeAt(6).doBusiness();
    // 15 + 60 - 36 + 8 = 47, less Int(5.64): 42 percent, 840 tickets; showtime 6: 51 less
    // Int(6.12): 45 percent, 900 tickets.
    const ShowtimeTableText table = showtimeTable(mm());
    EXPECT_EQ(table.rows[4].income, "$5,040");
    EXPECT_EQ(table.totalSold, "1740");
    EXPECT_EQ(table.totalIncome, "$10.44k");
}

TEST_F(Texts, AdsGrid) {
    mm().setShowtimeAds(2, 3);
    mm().setShowtimeAds(7, 1);
    const GridText grid = adsGrid(mm());
    EXPECT_EQ(grid.header, (std::vector<std::string>{"Showtime", "# of ads", "Daily income",
                                                     "Loss to popularity"}));
    ASSERT_EQ(grid.rows.size(), 9u);
    EXPECT_EQ(grid.rows[1], (std::vector<std::string>{"Noon", "3", "$45", "6"}));
    EXPECT_EQ(grid.rows[0], (std::vector<std::string>{"10 AM", "0", "$0", "0"}));
    EXPECT_EQ(grid.rows[8], (std::vector<std::string>{"Totals", "4", "$60", "8"}));
}

TEST(TicketPriceText, DollarHashPointZeroZero) {
    EXPECT_EQ(ticketPriceText(6), "$6.00");
    EXPECT_EQ(ticketPriceText(4.5), "$4.50");
    EXPECT_EQ(ticketPriceText(0.5), "$.50");
    EXPECT_EQ(ticketPriceText(0), "$.00");
    EXPECT_EQ(ticketPriceText(1234.5), "$1234.50");
    EXPECT_EQ(ticketPriceText(2.005), "$2.01");
}

// The ads box: empty text changes nothing, else the leading number floored to 16 bits.
TEST(AdsAnswer, LeadingNumberOfTheText) {
    const struct {
        const char* text;
        std::optional<int> ads;
    } cases[] = {{"", std::nullopt}, {"3", 3},     {"2 ads", 2}, {"lots", 0},
                 {"2.9", 2},         {"-1.5", -2}, {" 4", 4},    {"32767", 32767}};
    for (const auto& c : cases)
        EXPECT_EQ(adsAnswer(c.text), c.ads) << '"' << c.text << '"';
    EXPECT_THROW(adsAnswer("40000"), GameError);
}
