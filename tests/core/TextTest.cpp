#include "core/Text.h"
#include "core/GameError.h"

#include <gtest/gtest.h>

using namespace zorvane;

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
    EXPECT_EQ(digitsValue("$1,234.50"), 1234.5);
    EXPECT_EQ(digitsValue("12abc3"), 123);
    EXPECT_EQ(digitsValue("1.2.3"), 1.2);
    EXPECT_EQ(digitsValue(""), 0);
    EXPECT_EQ(digitsValue("-40"), 40);
}

TEST(Text, FormatMoneyShowsCentsOnlyWhenNotWhole) {
    EXPECT_EQ(formatMoney(1500), "$1,500");
    EXPECT_EQ(formatMoney(1500.5), "$1,500.50");
    EXPECT_EQ(formatMoney(0), "$0");
    EXPECT_EQ(formatMoney(1500.004), "$1,500.00");
    EXPECT_EQ(formatMoney(-1500), "-$1,500");
    EXPECT_EQ(formatMoney(-0.25), "-$0.25");
    EXPECT_EQ(formatMoney(1234567.891), "$1,234,567.89");
    EXPECT_EQ(formatMoney(999.995), "$1,000.00");
    EXPECT_EQ(formatMoney(0.1 + 0.2), "$0.30"); // 15 digits: 0.3, not whole
}

TEST(Text, FormatMoneyShortForTheSummary) {
    EXPECT_EQ(formatMoneyShort(999.99), "$999.99");
    EXPECT_EQ(formatMoneyShort(1000), "$1k");
    EXPECT_EQ(formatMoneyShort(2000), "$2k");
    EXPECT_EQ(formatMoneyShort(2500), "$2.5k");
    EXPECT_EQ(formatMoneyShort(2345), "$2.35k");
    EXPECT_EQ(formatMoneyShort(1234567), "$1,234.57k");
    EXPECT_EQ(formatMoneyShort(-5000), "-$5,000");
}

TEST(Text, GetPercentIsNotThePositionInTheRange) {
    EXPECT_EQ(getPercent(10, 20, 15), 150);
    EXPECT_EQ(getPercent(0, 100, 30), 30);
    EXPECT_THROW(getPercent(5, 5, 1), GameError);
}
