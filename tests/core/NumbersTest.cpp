#include "core/Numbers.h"
#include "core/GameError.h"
#include "core/Random.h"
#include "core/Text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

using namespace zorvane;

TEST(Numbers, StoringRoundsHalfToEvenAndChecksTheRangeAfterRounding) {
    for (const auto& [value, stored] : {std::pair{100.5, 100},
                                        {101.5, 102},
                                        {-0.5, 0},
                                        {-1.5, -2},
                                        {2.4999, 2},
                                        {32767.4, 32767},
                                        {-32768.5, -32768}}) // ties to the even -32768
        EXPECT_EQ(toInt16(value), stored) << value;
    EXPECT_EQ(toInt32(2147483646.5), 2147483646);
    for (const double value : {32767.5, -32769.0, std::nan("")})
        EXPECT_THROW(toInt16(value), GameError) << value;
    EXPECT_THROW(toInt32(2147483647.5), GameError);
}

TEST(Numbers, IntFloorsTowardMinusInfinity) {
    EXPECT_EQ(floorInt16(2.9), 2);
    EXPECT_EQ(floorInt16(-2.1), -3);
    EXPECT_EQ(Int(-0.5), -1.0);
    EXPECT_THROW(floorInt16(32768.0), GameError);
}

TEST(Numbers, LeadingNumberOfAText) {
    // " 7" is the form saved games write non-negative numbers in.
    for (const auto& [text, value] : {std::pair{"1000 dollars", 1000.0},
                                      {"$1000", 0},
                                      {"   12.5abc", 12.5},
                                      {"-3", -3},
                                      {"1.2.3", 1.2},
                                      {".5", 0.5},
                                      {"1e3x", 1000},
                                      {"1e", 1},
                                      {"", 0},
                                      {"-", 0},
                                      {" 7", 7},
                                      {"1e300", 1e300},
                                      {"1e-400", 0}})
        EXPECT_EQ(leadingNumber(text), value) << '"' << text << '"';
    // Beyond a double's range a number is an overflow, not an infinity (which a saved game
    // would write as "inf" and read back as 0).
    EXPECT_THROW(leadingNumber(std::string(400, '9')), GameError);
    try {
        leadingNumber("1e400");
        ADD_FAILURE() << "no overflow";
    } catch (const GameError& e) {
        EXPECT_EQ(e.kind(), GameError::Kind::Overflow);
        EXPECT_NE(std::string(e.what()).find("1e400"), std::string::npos) << e.what();
    }
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
    for (const auto& [value, text] :
         {std::pair{1500.0, "1500"}, {0.1, "0.1"}, {1.0 / 3, "0.333333333333333"}})
        EXPECT_EQ(numberText(value), text);
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

TEST(Text, TextFilters) {
    EXPECT_EQ(stripQuotes("\"C:\\my games\\a.zvn\""), "C:\\my games\\a.zvn");
    EXPECT_EQ(stripQuotes(""), "");
    EXPECT_EQ(digitsOnly("-12"), "12");
    EXPECT_EQ(digitsOnly("1.5E-3"), "1.53"); // an exponent loses its letter and sign
    EXPECT_EQ(trimRight("abc  "), "abc");
    EXPECT_EQ(trimRight("  abc\t"), "  abc\t");
    EXPECT_EQ(trimRight("    "), "");
}

TEST(Text, DigitsValueReadsWhatAPlayerTyped) {
    for (const auto& [text, value] :
         {std::pair{"$1,234.50", 1234.5}, {"12abc3", 123}, {"1.2.3", 1.2}, {"", 0}, {"-40", 40}})
        EXPECT_EQ(digitsValue(text), value) << '"' << text << '"';
}

TEST(Text, MoneyShowsCentsOnlyWhenNotWholeAndTheSummaryInThousands) {
    // 0.1 + 0.2 to 15 digits is 0.3, not whole.
    for (const auto& [value, text] : {std::pair{1500.0, "$1,500"},
                                      {1500.5, "$1,500.50"},
                                      {0, "$0"},
                                      {1500.004, "$1,500.00"},
                                      {-1500, "-$1,500"},
                                      {-0.25, "-$0.25"},
                                      {1234567.891, "$1,234,567.89"},
                                      {999.995, "$1,000.00"},
                                      {0.1 + 0.2, "$0.30"}})
        EXPECT_EQ(formatMoney(value), text) << value;
    for (const auto& [value, text] : {std::pair{999.99, "$999.99"},
                                      {1000, "$1k"},
                                      {2000, "$2k"},
                                      {2500, "$2.5k"},
                                      {2345, "$2.35k"},
                                      {1234567, "$1,234.57k"},
                                      {-5000, "-$5,000"}})
        EXPECT_EQ(formatMoneyShort(value), text) << value;
}

TEST(Text, GetPercentIsNotThePositionInTheRange) {
    EXPECT_EQ(getPercent(10, 20, 15), 150);
    EXPECT_EQ(getPercent(0, 100, 30), 30);
    EXPECT_THROW(getPercent(5, 5, 1), GameError);
}
