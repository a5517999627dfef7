#include "lab/Lab.h"

#include <gtest/gtest.h>

using zorvane::lab::quantile;

TEST(Quantile, NoValuesGiveZero) {
    EXPECT_EQ(quantile({}, 0.5), 0);
    EXPECT_EQ(quantile({}, 0.0), 0);
}

TEST(Quantile, OneValueIsEveryQuantile) {
    EXPECT_EQ(quantile({42}, 0.0), 42);
    EXPECT_EQ(quantile({42}, 0.5), 42);
    EXPECT_EQ(quantile({42}, 1.0), 42);
}

TEST(Quantile, EndsAreTheSmallestAndTheLargest) {
    const std::vector<double> v = {7, -3, 12, 0, 5};
    EXPECT_EQ(quantile(v, 0.0), -3);
    EXPECT_EQ(quantile(v, 1.0), 12);
}

TEST(Quantile, MedianOfAnOddCountIsTheMiddleValueWhateverTheOrder) {
    EXPECT_EQ(quantile({9, 1, 5}, 0.5), 5);
    EXPECT_EQ(quantile({5, 9, 1, 3, 7}, 0.5), 5);
}

TEST(Quantile, BetweenTwoValuesItInterpolates) {
    // Sorted 10, 20, 30, 40: the median lies halfway between 20 and 30.
    EXPECT_DOUBLE_EQ(quantile({40, 10, 30, 20}, 0.5), 25);
    // Position 0.1 * 3 = 0.3: 10 + 0.3 * (20 - 10).
    EXPECT_DOUBLE_EQ(quantile({40, 10, 30, 20}, 0.1), 13);
    // Position 0.9 * 3 = 2.7: 30 + 0.7 * (40 - 30).
    EXPECT_DOUBLE_EQ(quantile({40, 10, 30, 20}, 0.9), 37);
}

TEST(Quantile, RepeatedValuesStayPut) {
    EXPECT_EQ(quantile({3, 3, 3, 3}, 0.25), 3);
    EXPECT_DOUBLE_EQ(quantile({1, 1, 1, 101}, 0.9), 71);
}
