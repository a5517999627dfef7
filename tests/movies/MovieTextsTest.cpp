#include "MovieFixture.h"

#include "core/GameError.h"
#include "movies/MovieTexts.h"

using namespace zorvane;
using namespace zorvane::test;

namespace {

struct Texts : MovieFixture {
    void SetUp() override {
        setUpWith("Short\n"
                  "Exactly Thirty Characters Long\n"   // 30
                  "Thirty-One Characters Long Title\n" // 32
                  "Night of the Lepus\n");
        pops({10, 20, 30, 40});
    }
};

} // namespace

TEST_F(Texts, OwnListCutsLongTitlesAndShowsCentsAdsGridRowsAndTotals) {
    own({1, 2, 3});
    mm().myMovieAt(1).setMyPopularity(45); // the list shows whatever the price is now
    EXPECT_EQ(myMovieLines(mm()), Titles({"Short $4,500", "Exactly Thirty Characters Long $2,000",
                                          "Thirty-One Characters Lon... $3,000"}));
    math().inflation = 0.0333;
    mm().nextYearMovies();
    EXPECT_EQ(myMovieLines(mm())[0], "Short $4,501.50");
    // The ads grid: a row a showtime, then the totals.
    mm().setShowtimeAds(2, 3);
    mm().setShowtimeAds(7, 1);
    const GridText grid = adsGrid(mm());
    ASSERT_EQ(grid.rows.size(), 9u);
    EXPECT_EQ(grid.rows[1], (std::vector<std::string>{"Noon", "3", "$45", "6"}));
    EXPECT_EQ(grid.rows[8], (std::vector<std::string>{"Totals", "4", "$60", "8"}));
}

TEST(TicketPriceAndAdsBoxes, DollarHashPointZeroZeroAndTheLeadingNumberOfTheText) {
    EXPECT_EQ(ticketPriceText(6), "$6.00");
    EXPECT_EQ(ticketPriceText(4.5), "$4.50");
    EXPECT_EQ(ticketPriceText(0.5), "$.50");
    EXPECT_EQ(ticketPriceText(0), "$.00");
    EXPECT_EQ(ticketPriceText(1234.5), "$1234.50");
    EXPECT_EQ(ticketPriceText(2.005), "$2.01");
    // The ads box: empty text changes nothing, else the leading number floored to 16 bits.
    const struct {
        const char* text;
        std::optional<int> ads;
    } cases[] = {{"", std::nullopt}, {"3", 3},     {"2 ads", 2}, {"lots", 0},
                 {"2.9", 2},         {"-1.5", -2}, {" 4", 4},    {"32767", 32767}};
    for (const auto& c : cases)
        EXPECT_EQ(adsAnswer(c.text), c.ads) << '"' << c.text << '"';
    EXPECT_THROW(adsAnswer("40000"), GameError);
}
