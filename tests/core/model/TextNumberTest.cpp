#include "core/model/TextNumber.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <string>

namespace orrery {
namespace {

TEST(FloatValue, TakesTheLongestLeadingDecimalNumber) {
    EXPECT_EQ(floatValue("0.0f"), 0.0f);
    EXPECT_EQ(floatValue("12abc"), 12.0f);
    EXPECT_EQ(floatValue("abc"), 0.0f);
    EXPECT_EQ(floatValue(""), 0.0f);
    EXPECT_EQ(floatValue("  \t-12.5"), -12.5f);
    EXPECT_EQ(floatValue("+.5"), 0.5f);
    EXPECT_EQ(floatValue("5."), 5.0f);
    EXPECT_EQ(floatValue("1e3"), 1000.0f);
    EXPECT_EQ(floatValue("2e"), 2.0f); // an exponent without digits is not part of it
    EXPECT_EQ(floatValue("3e+x"), 3.0f);
    EXPECT_EQ(floatValue("."), 0.0f);
    EXPECT_EQ(floatValue("-"), 0.0f);
    EXPECT_EQ(floatValue("0.1"), 0.1f); // single precision, not a rounded double
}

TEST(FloatValue, NeverReadsWordsOrHexAsNumbers) {
    EXPECT_EQ(floatValue("nan"), 0.0f);
    EXPECT_EQ(floatValue("inf"), 0.0f);
    EXPECT_EQ(floatValue("0x10"), 0.0f);
}

TEST(FloatValue, OverflowAndUnderflow) {
    EXPECT_TRUE(std::isinf(floatValue("1e60")));
    EXPECT_LT(floatValue("-1e60"), 0.0f);
    EXPECT_EQ(floatValue("1e-60"), 0.0f);
    // Underflow is told by the value, whatever the form of the text.
    EXPECT_EQ(floatValue("0." + std::string(45, '0') + "1"), 0.0f);
    EXPECT_EQ(floatValue("-0.000000000000000000000000000000000000000000000001"), 0.0f);
    EXPECT_EQ(floatValue("1000e-60"), 0.0f);
    EXPECT_EQ(floatValue("0.0001e-50"), 0.0f);
    EXPECT_TRUE(std::isinf(floatValue("0.001e60")));
    EXPECT_TRUE(std::isinf(floatValue(std::string(50, '9'))));
}

TEST(IntegerValue, LeadingDigitsAndSaturation) {
    EXPECT_EQ(integerValue("42"), 42);
    EXPECT_EQ(integerValue(" -7x"), -7);
    EXPECT_EQ(integerValue("3.9"), 3);
    EXPECT_EQ(integerValue("x3"), 0);
    EXPECT_EQ(integerValue("99999999999999999999999"), INT64_MAX);
    EXPECT_EQ(integerValue("-99999999999999999999999"), INT64_MIN);
}

TEST(IsInteger, WholeNumbersOnly) {
    EXPECT_TRUE(isInteger("800"));
    EXPECT_TRUE(isInteger("-3"));
    EXPECT_FALSE(isInteger("800.5"));
    EXPECT_FALSE(isInteger(""));
    EXPECT_FALSE(isInteger("+"));
    EXPECT_FALSE(isInteger("8 00"));
    EXPECT_FALSE(isInteger("1e3"));
}

TEST(Formatting, MatchesPrintfFormats) {
    EXPECT_EQ(formatF(500.0), "500.000000");
    EXPECT_EQ(formatF(-0.5), "-0.500000");
    EXPECT_EQ(formatFixed(45.0, 1), "45.0");
    EXPECT_EQ(formatFixed(44.96, 1), "45.0");
    EXPECT_EQ(formatFixed(959.6, 0), "960");
    EXPECT_EQ(formatGeneral(12.5f), "12.5");
    EXPECT_EQ(formatGeneral(100.0f), "100");
    EXPECT_EQ(formatGeneral(-3.25f), "-3.25");
    EXPECT_EQ(formatGeneral(1.0f / 3.0f), "0.3333333");
}

TEST(Formatting, IgnoresTheProcessLocale) {
    // The window sets the user's locale; a comma decimal separator would corrupt packages.
    const char* previous = std::setlocale(LC_ALL, "de_DE.UTF-8");
    if (!previous)
        previous = std::setlocale(LC_ALL, "C.UTF-8");
    EXPECT_EQ(formatF(0.5), "0.500000");
    EXPECT_EQ(floatValue("0.5"), 0.5f);
    std::setlocale(LC_ALL, "C");
}

} // namespace
} // namespace orrery
