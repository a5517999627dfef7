#include "reputation/ratingTerms.h"
#include "core/GameError.h"
#include "reputation/ratingManager.h"

#include <gtest/gtest.h>

using namespace zorvane;
namespace terms = zorvane::ratingTerms;

TEST(RatingTerms, DemandIsTheMeanOfEightShowtimesFloored) {
    EXPECT_EQ(terms::demand(400, 30), 15);
    EXPECT_EQ(terms::demand(200, 30), 7);  // 7.5: floored, not rounded
    EXPECT_EQ(terms::demand(236, 30), 8);  // 8.85
    EXPECT_EQ(terms::demand(320, 50), 20); // four full showtimes of 80, four empty
    EXPECT_EQ(terms::demand(0, 30), 0);
}

TEST(RatingTerms, AdsFloorGoesAgainstTheTheater) {
    EXPECT_EQ(terms::ads(0, 24, 10), 0);    // no ads: exactly 0
    EXPECT_EQ(terms::ads(1, 24, 10), -1);   // -0.42 costs a whole point
    EXPECT_EQ(terms::ads(12, 24, 5), -3);   // -2.5
    EXPECT_EQ(terms::ads(24, 24, 10), -10); // exact
    EXPECT_EQ(terms::ads(48, 24, 10), -20); // not capped before weighting
    EXPECT_EQ(terms::ads(5, 24, 0), 0);
    EXPECT_THROW(terms::ads(1, 0, 10), GameError);
}

TEST(RatingTerms, GamePopularityMinimumOnlyNarrowsTheSpan) {
    EXPECT_EQ(terms::gamePops(50, 50, 100, 10), 10); // p = 50 * 100 / 50 = 100
    EXPECT_EQ(terms::gamePops(0, 1, 100, 20), 0);    // no machines
    EXPECT_EQ(terms::gamePops(1, 0, 3, 15), 5);      // p 33.3 -> 33; 4.95 -> 5
    EXPECT_EQ(terms::gamePops(1, 0, 8, 100), 12);    // p 12.5 -> 12, half to even
    EXPECT_EQ(terms::gamePops(1, 0, 2, 5), 2);       // 2.5 -> 2
    EXPECT_EQ(terms::gamePops(1, 0, 2, 7), 4);       // 3.5 -> 4
    EXPECT_THROW(terms::gamePops(10, 50, 50, 10), GameError);
}

TEST(RatingTerms, GameCount) {
    EXPECT_EQ(terms::gameCount(6, 12, 10), 5);
    EXPECT_EQ(terms::gameCount(1, 12, 10), 1);   // p 8.33 -> 8; 0.8 -> 1
    EXPECT_EQ(terms::gameCount(6, 12, 12.5), 6); // 6.25
    EXPECT_EQ(terms::gameCount(0, 12, 10), 0);
    EXPECT_THROW(terms::gameCount(1, 0, 10), GameError);
}

TEST(RatingTerms, Concessions) {
    EXPECT_EQ(terms::concessions(125, 20), 25);
    EXPECT_EQ(terms::concessions(12, 25), 3);
    EXPECT_EQ(terms::concessions(125, 2), 2); // 2.5 -> 2
    EXPECT_EQ(terms::concessions(0, 20), 0);
}

TEST(RatingTerms, CalmStaffEarnTheFullWeight) {
    EXPECT_EQ(terms::anger(-1, 100, 15), 0);
    EXPECT_EQ(terms::anger(100, 100, 15), 0); // seven vacant positions
    EXPECT_EQ(terms::anger(0, 100, 15), 15);
    EXPECT_EQ(terms::anger(33, 100, 15), 10);  // 67 * 0.15 = 10.05
    EXPECT_EQ(terms::anger(1, 3, 50), 34);     // p 33.3 rounded to 33 first; 33.5 -> 34
    EXPECT_EQ(terms::anger(150, 100, 10), -5); // angrier than the quitting point
    EXPECT_THROW(terms::anger(50, 0, 15), GameError);
}

TEST(RatingTerms, PayAboveTheMinimumWage) {
    EXPECT_EQ(terms::pay(30.9, 10.5, 10), 10); // 20.4 floored to 20: full weight
    EXPECT_EQ(terms::pay(19.99, 10, 10), 4);   // 9: 45 percent, 4.5 -> 4
    EXPECT_EQ(terms::pay(10, 10.5, 30), -2);   // -0.5 floored to -1: -1.5 -> -2
    EXPECT_EQ(terms::pay(50, 10, 10), 20);     // not capped
}

TEST(RatingTerms, AmbitionCountsOnlyWhatItIsGiven) {
    EXPECT_EQ(terms::ambition(0, 50), 0);
    EXPECT_EQ(terms::ambition(5, 10), 5);
}

TEST(RatingTerms, Promotions) {
    EXPECT_EQ(terms::promotions(100, 100, 10), 10);
    EXPECT_EQ(terms::promotions(15, 100, 10), 2); // 1.5 -> 2
    EXPECT_EQ(terms::promotions(25, 100, 10), 2); // 2.5 -> 2
    EXPECT_EQ(terms::promotions(1, 3, 100), 33);  // p 33.3 -> 33
    EXPECT_THROW(terms::promotions(1, 0, 10), GameError);
}

TEST(RatingTerms, ChanceRollsOneToHundred) {
    EXPECT_EQ(terms::chance(0.0, 10), 0);     // roll 1
    EXPECT_EQ(terms::chance(0.9999, 10), 10); // roll 100
    EXPECT_EQ(terms::chance(0.25, 10), 3);    // roll 26: 2.6
    EXPECT_EQ(terms::chance(0.04, 50), 2);    // roll 5: 2.5 -> 2
}

TEST(RatingTerms, BuildingNeverCounts) {
    EXPECT_EQ(terms::building(0), 0);
    EXPECT_EQ(terms::building(100), 0);
}

TEST(RatingTerms, TheSumIsClampedAndSixteenBit) {
    EXPECT_EQ(terms::clampedSum({}), 1);
    EXPECT_EQ(terms::clampedSum({-30, 10}), 1);
    EXPECT_EQ(terms::clampedSum({60, 50}), 100);
    EXPECT_EQ(terms::clampedSum({50, -10, 7}), 47);
    EXPECT_EQ(terms::clampedSum({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}), 66);
    // A later negative term would bring it back, but the running sum overflows first.
    EXPECT_THROW(terms::clampedSum({32767, 1, -100}), GameError);
}

TEST(RatingBars, SevenPointTwoTwipsAPercent) {
    EXPECT_EQ(ratingManager::barTop(100), 2100);
    EXPECT_EQ(ratingManager::barTop(0), 2820);
    EXPECT_EQ(ratingManager::barTop(57), 2409); // 2409.6 floored
    EXPECT_EQ(ratingManager::barBottom - ratingManager::barTop(100), 720);
}
