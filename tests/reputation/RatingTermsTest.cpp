#include "reputation/RatingTerms.h"
#include "core/GameError.h"
#include "reputation/ratingManager.h"

#include <gtest/gtest.h>

using namespace zorvane;
namespace terms = zorvane::ratingTerms;

// Each term of the rating with its own rounding: floors that go against the theater, halves
// to even, percentages rounded before they are weighted.
TEST(RatingTerms, Table) {
    const struct {
        const char* what;
        int got, expected;
    } rows[] = {
        {"demand: mean of eight showtimes", terms::demand(400, 30), 15},
        {"demand 7.5 floored", terms::demand(200, 30), 7},
        {"demand 8.85 floored", terms::demand(236, 30), 8},
        {"demand of four full showtimes", terms::demand(320, 50), 20},
        {"ads: none is exactly 0", terms::ads(0, 24, 10), 0},
        {"ads: -0.42 costs a whole point", terms::ads(1, 24, 10), -1},
        {"ads: -2.5", terms::ads(12, 24, 5), -3},
        {"ads: not capped before weighting", terms::ads(48, 24, 10), -20},
        {"ads: weight 0", terms::ads(5, 24, 0), 0},
        {"game pops: full", terms::gamePops(50, 50, 100, 10), 10},
        {"game pops: no machines", terms::gamePops(0, 1, 100, 20), 0},
        {"game pops: 4.95", terms::gamePops(1, 0, 3, 15), 5},
        {"game pops: p 12.5 to even", terms::gamePops(1, 0, 8, 100), 12},
        {"game pops: 2.5", terms::gamePops(1, 0, 2, 5), 2},
        {"game pops: 3.5", terms::gamePops(1, 0, 2, 7), 4},
        {"game count", terms::gameCount(6, 12, 10), 5},
        {"game count: 0.8", terms::gameCount(1, 12, 10), 1},
        {"game count: 6.25", terms::gameCount(6, 12, 12.5), 6},
        {"concessions", terms::concessions(125, 20), 25},
        {"concessions: 2.5", terms::concessions(125, 2), 2},
        {"anger: none recorded", terms::anger(-1, 100, 15), 0},
        {"anger: seven vacant posts", terms::anger(100, 100, 15), 0},
        {"anger: calm", terms::anger(0, 100, 15), 15},
        {"anger: 10.05", terms::anger(33, 100, 15), 10},
        {"anger: p rounded first, 33.5", terms::anger(1, 3, 50), 34},
        {"anger: past the quitting point", terms::anger(150, 100, 10), -5},
        {"pay: 20.4 floored, full weight", terms::pay(30.9, 10.5, 10), 10},
        {"pay: 4.5", terms::pay(19.99, 10, 10), 4},
        {"pay: below the minimum", terms::pay(10, 10.5, 30), -2},
        {"pay: not capped", terms::pay(50, 10, 10), 20},
        {"ambition", terms::ambition(5, 10), 5},
        {"promotions: 1.5", terms::promotions(15, 100, 10), 2},
        {"promotions: 2.5", terms::promotions(25, 100, 10), 2},
        {"promotions: p 33.3", terms::promotions(1, 3, 100), 33},
        {"chance: roll 1", terms::chance(0.0, 10), 0},
        {"chance: roll 100", terms::chance(0.9999, 10), 10},
        {"chance: roll 26", terms::chance(0.25, 10), 3},
        {"chance: roll 5, 2.5", terms::chance(0.04, 50), 2},
        {"building never counts", terms::building(100), 0},
        {"sum of none", terms::clampedSum({}), 1},
        {"sum clamped to one", terms::clampedSum({-30, 10}), 1},
        {"sum clamped to a hundred", terms::clampedSum({60, 50}), 100},
        {"sum", terms::clampedSum({50, -10, 7}), 47},
        {"bar top 57: 2409.6 floored", ratingManager::barTop(57), 2409},
        {"bar top 0", ratingManager::barTop(0), 2820},
        {"bar top 100", ratingManager::barTop(100), 2100},
    };
    for (const auto& r : rows)
        EXPECT_EQ(r.got, r.expected) << r.what;
    EXPECT_THROW(terms::ads(1, 0, 10), GameError);
    EXPECT_THROW(terms::gamePops(10, 50, 50, 10), GameError);
    EXPECT_THROW(terms::gameCount(1, 0, 10), GameError);
    EXPECT_THROW(terms::anger(50, 0, 15), GameError);
    EXPECT_THROW(terms::promotions(1, 0, 10), GameError);
    // A later negative term would bring it back, but the running sum overflows first.
    EXPECT_THROW(terms::clampedSum({32767, 1, -100}), GameError);
}
