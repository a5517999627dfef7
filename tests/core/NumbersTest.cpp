#include "core/Numbers.h"
#include "core/GameError.h"
#include "core/Random.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace zorvane;

TEST(Numbers, StoringRoundsHalfToEven) {
    EXPECT_EQ(toInt16(100.5), 100);
    EXPECT_EQ(toInt16(101.5), 102);
    EXPECT_EQ(toInt16(-0.5), 0);
    EXPECT_EQ(toInt16(-1.5), -2);
    EXPECT_EQ(toInt16(2.4999), 2);
    EXPECT_EQ(toInt32(2147483646.5), 2147483646);
}

TEST(Numbers, SixteenBitRangeIsCheckedAfterRounding) {
    EXPECT_EQ(toInt16(32767.4), 32767);
    EXPECT_EQ(toInt16(-32768.5), -32768); // ties to the even -32768
    EXPECT_THROW(toInt16(32767.5), GameError);
    EXPECT_THROW(toInt16(-32769), GameError);
    EXPECT_THROW(toInt16(std::nan("")), GameError);
    EXPECT_THROW(toInt32(2147483647.5), GameError);
}

TEST(Numbers, IntFloorsTowardMinusInfinity) {
    EXPECT_EQ(floorInt16(2.9), 2);
    EXPECT_EQ(floorInt16(-2.1), -3);
    EXPECT_EQ(Int(-0.5), -1.0);
    EXPECT_THROW(floorInt16(32768.0), GameError);
}

TEST(Numbers, LeadingNumberOfAText) {
    EXPECT_EQ(leadingNumber("1000 dollars"), 1000);
    EXPECT_EQ(leadingNumber("$1000"), 0);
    EXPECT_EQ(leadingNumber("   12.5abc"), 12.5);
    EXPECT_EQ(leadingNumber("-3"), -3);
    EXPECT_EQ(leadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(leadingNumber(".5"), 0.5);
    EXPECT_EQ(leadingNumber("1e3x"), 1000);
    EXPECT_EQ(leadingNumber("1e"), 1);
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("-"), 0);
    EXPECT_EQ(leadingNumber(" 7"), 7); // the form saved games write non-negative numbers in
}

TEST(Numbers, StrictNumberWantsTheWholeText) {
    EXPECT_EQ(strictNumber(" 40 ", "k"), 40);
    EXPECT_THROW(strictNumber("40 boxes", "k"), GameError);
    EXPECT_THROW(strictNumber("", "k"), GameError);
}

TEST(Numbers, CheckedArithmeticTrapsOnOverflow) {
    EXPECT_EQ(add16(32000, 767), 32767);
    EXPECT_THROW(add16(32000, 768), GameError);
    EXPECT_THROW(sub16(-32768, 1), GameError);
    EXPECT_THROW(mul16(200, 200), GameError);

    Int16 x{32766};
    ++x;
    EXPECT_EQ(x, 32767);
    EXPECT_THROW(++x, GameError);
    EXPECT_EQ(x, 32767); // a failed store leaves the value
    Int16 y;
    EXPECT_THROW(y = 40000, GameError);
    y = x - 1;
    EXPECT_EQ(y, 32766);
}

TEST(Numbers, SavedGameNumberForms) {
    EXPECT_EQ(numberText(1500), "1500");
    EXPECT_EQ(numberText(0.1), "0.1");
    EXPECT_EQ(numberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(numberTextSigned(5), " 5");
    EXPECT_EQ(numberTextSigned(-5), "-5");
    EXPECT_EQ(leadingNumber(numberTextSigned(2.25)), 2.25);
}

TEST(Random, PercentRollIsOneToHundredAndDrivable) {
    Random r(42);
    for (int i = 0; i < 10000; ++i) {
        const int roll = r.percentRoll();
        ASSERT_GE(roll, 1);
        ASSERT_LE(roll, 100);
    }
    r.force({0.0, 0.999999, 0.5});
    EXPECT_EQ(r.percentRoll(), 1);
    EXPECT_EQ(r.percentRoll(), 100);
    EXPECT_EQ(r.next(), 0.5);
}

TEST(Random, ASeedGivesTheSameDrawsWithAnyCompiler) {
    // Pinned: a change to the engine or its seeding would replay no seed as before.
    Random a(20261123);
    for (const double expected :
         {0x1.c718d0f4346c3p-1, 0x1.8a93bd2c8bff6p-1, 0x1.8333b1e56f3bfp-1, 0x1.800f717056808p-3})
        EXPECT_EQ(a.next(), expected);
    EXPECT_EQ(a.draws(), 4u);
    EXPECT_EQ(Random(0).next(), 0x1.b558c1c3dad49p-1);
}
