#include "core/GameError.h"
#include "reputation/ReputationTexts.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace zorvane;
using namespace zorvane::test;

namespace {

// A started game whose rating is driven by the stand alone: every other weight is 0, so
// the day's rating is (ratingconcessions percent of the quality score) clamped.
struct RatingFixture : ::testing::Test {
    DataFolder data;
    std::unique_ptr<TestGame> game;
    ratingManager& rating() { return (*game)->rating; }

    void SetUp() override {
        game = std::make_unique<TestGame>(data.path().string(), 7);
        (*game)->startup();
        MathVars& m = (*game)->math;
        for (Int16* w :
             {&m.ratingdemand, &m.ratingads, &m.ratinganger, &m.ratingpay, &m.ratingambition,
              &m.ratingpromo, &m.ratinggamepops, &m.ratingrnd, &m.ratingconcessions})
            *w = 0;
        m.ratinggamenums = 0;
    }
    // All five items at one quality; score 125 at quality 2, 62 with two at 2 and one at 1.
    void qualities(int q) {
        for (int i = 0; i < 5; ++i)
            (*game)->concessions.setItemQuality(i, q);
    }
};

} // namespace

// With nothing to count the rating is 1; the stand's term is its weight's percent of the
// quality score, and the sum is clamped to 100.
TEST_F(RatingFixture, TheConcessionsTermUsesTheQualityScore) {
    rating().ratingNextDay();
    EXPECT_EQ(rating().getRating(), 1);
    EXPECT_EQ(rating().dayTerms(), (std::array<int, 11>{}));
    qualities(2);
    (*game)->math.ratingconcessions = 20;
    const std::array<int, 11> t = rating().dayTerms();
    EXPECT_EQ(t[4], 25);
    EXPECT_EQ(rating().ratingOfTheDay(), 25);
    (*game)->math.ratingconcessions = 200;
    EXPECT_EQ(rating().ratingOfTheDay(), 100);
}

// A score of 125 weighted 80 is a rating of 100, weighted 40 one of 50; each day the
// average moves halfway to the day's rating, floored.
TEST_F(RatingFixture, TheDailyAverageIsFloored) {
    qualities(2);
    rating().currentAverage = 0;
    const int days[][3] = {{80, 100, 50}, {80, 100, 75}, {80, 100, 87}, {40, 50, 68}};
    for (const auto& [weight, day, average] : days) {
        (*game)->math.ratingconcessions = weight;
        rating().ratingNextDay();
        EXPECT_EQ(rating().currentRating, day);
        EXPECT_EQ(rating().currentAverage, average) << weight << " " << day;
    }
    EXPECT_EQ(ratingCaption(rating()), "50 %");
    EXPECT_EQ(ratingBarWidth(rating(), 1001), 500);
}

// Start-up draws every bar empty, January's green; a month's end keeps its rating (not the
// average) in its bar, and a new year paints the bars neutral.
TEST_F(RatingFixture, TheMonthKeepsTheRatingNotTheAverage) {
    const auto& bars = rating().bars();
    for (int m = 0; m < 12; ++m) {
        EXPECT_EQ(bars[m].top, 2820) << m;
        EXPECT_EQ(bars[m].height, 0) << m;
        EXPECT_EQ(bars[m].tip, "0%") << m;
    }
    EXPECT_EQ(bars[0].colour, 0x00C000u);
    EXPECT_EQ(bars[1].colour, 0x80FFFFu);
    (*game)->calendar.currentmonth = 3;
    rating().currentRating = 57;
    rating().currentAverage = 40;
    rating().ratingNextMonth();
    EXPECT_EQ(rating().history[3], 57);
    EXPECT_EQ(rating().currentAverage, 0);
    const HistoryBar& bar = rating().bars()[3];
    EXPECT_EQ(bar.top, 2409);
    EXPECT_EQ(bar.height, 411);
    EXPECT_EQ(bar.colour, 0x00C000u);
    EXPECT_EQ(bar.tip, "57%");
    rating().ratingNextYear();
    EXPECT_EQ(rating().bars()[3].colour, 0x80FFFFu);
    EXPECT_EQ(rating().bars()[3].height, 411);
    EXPECT_EQ(rating().history[3], 57);
    (*game)->calendar.currentmonth = 12; // out of range
    EXPECT_THROW(rating().ratingNextMonth(), GameError);
}

TEST_F(RatingFixture, MonthEndTakesTheRatingOfTheDayBefore) {
    // Start-up ran day 1; the 28th day turns the month before its own rating.
    for (int d = 0; d < 26; ++d)
        (*game)->calendar.nextDay();
    EXPECT_EQ(rating().currentRating, 1);
    qualities(2);
    (*game)->math.ratingconcessions = 80;
    (*game)->calendar.nextDay();
    EXPECT_EQ((*game)->calendar.currentmonth, 1);
    EXPECT_EQ(rating().history[0], 1);      // the rating of the day before
    EXPECT_EQ(rating().currentRating, 100); // the day's own rating came after
    EXPECT_EQ(rating().currentAverage, 50); // from 0 again
}
