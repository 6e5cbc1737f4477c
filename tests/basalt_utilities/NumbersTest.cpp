#include "basalt_utilities/Numbers.h"

#include "basalt_utilities/FixedDecimals.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

using namespace basalt;

namespace {

// strtod in the C locale is the rule; the suite itself runs under a German one.
double byStrtod(const char* text)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    std::setlocale(LC_NUMERIC, "C");
    const double value = std::strtod(text, nullptr);
    std::setlocale(LC_NUMERIC, before.c_str());
    return value;
}

bool areSame(double a, double b)
{
    return (a == b || (std::isnan(a) && std::isnan(b))) && std::signbit(a) == std::signbit(b);
}

std::string fixed(double value, int decimals)
{
    std::array<char, kFixedSize> buffer{};
    return {buffer.data(), writeFixed(buffer.data(), value, decimals)};
}

} // namespace

TEST(Numbers, ReadAsStrtodDoes)
{
    // clang-format off
    for (const char* text : {
        "", "-", ".", "0", "-0", "4411825.5000", " 12 ", "12abc", "+7", "+-7", "-+7", "--7",
        "- 7", ".5", "-.5", "5.", "1,5", "1e3", "1e", "1e+", "1E-3x", "1e999", "-1e999", "1e-999",
        "0x10", "0x1.8p3", "0x", "inf", "-inf", "nan", "\t\n3.25",
        "0.1000000000000000055511151231257827", "F", "e5", "9007199254740993",
        "0.30000000000000004", "123456789012345678", "1234567890123456789",
        "99999999999999999999999", "0.000000000000000001"}) {
        EXPECT_TRUE(areSame(parseNumber(text), byStrtod(text))) << text;
        EXPECT_TRUE(areSame(readDecimal(text), byStrtod(text))) << text;
    }
    // clang-format on
    std::mt19937_64 random(8);
    for (int i = 0; i < 100000; ++i) {
        const std::string text = std::to_string(static_cast<std::int64_t>(random()) >> (i % 50)) +
                                 '.' + std::to_string(random() >> (i % 61));
        ASSERT_EQ(readDecimal(text), parseNumber(text)) << text;
    }
}

TEST(Numbers, LeaveTheGermanLocaleAside)
{
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");

    EXPECT_DOUBLE_EQ(parseNumber("1234.5"), 1234.5);
    EXPECT_EQ(formatFixed(1234.56789, 4), "1234.5679");
    EXPECT_EQ(formatGeneral(12.5), "12.5");
    EXPECT_EQ(formatShortest(0.1), "0.1");
    EXPECT_EQ(formatShortest(500000), "500000");
    std::setlocale(LC_ALL, "C");
}

TEST(Numbers, IntegersStopAtTheirLimits)
{
    for (const auto& [text, value] :
         {std::pair("2147483648", INT_MAX), std::pair("-2147483649", INT_MIN),
          std::pair("99999999999999999999", INT_MAX), std::pair("-99999999999999999999", INT_MIN),
          std::pair(" +42 of 50", 42), std::pair("+-3", 0), std::pair("x3", 0)})
        EXPECT_EQ(parseInteger(text), value) << text;
}

TEST(FixedDecimals, WriteWhatTheGeneralWayWrites)
{
    using Limits = std::numeric_limits<double>;
    // clang-format off
    for (const double value :
         {0.0, -0.0, -0.00001, 0.00005, 0.5, 1.5, 2.5, 0.125, 1.00005, 99999.99995, 4411825.12345,
          -116.123456785, 1e11, 123456789012.34565, 9e14, 1e15, 1e300, Limits::max(),
          Limits::denorm_min(), Limits::infinity(), Limits::quiet_NaN()}) {
        for (int decimals = 0; decimals <= 9; ++decimals)
            EXPECT_EQ(fixed(value, decimals), formatFixed(value, decimals)) << value;
    }
    // clang-format on
    std::mt19937_64 random(7);
    for (int i = 0; i < 100000; ++i) {
        const auto ties = static_cast<double>(static_cast<std::int64_t>(random()) >> 24) / 20000;
        ASSERT_EQ(fixed(ties, 4), formatFixed(ties, 4));
    }
}

TEST(WholeNumbers, AreTheWholeTextOrNothing)
{
    for (const auto& [text, value] :
         {std::pair("0", 0.0), std::pair(" 12 ", 12.0), std::pair("-1.5", -1.5),
          std::pair("+1.5", 1.5), std::pair("1e3", 1000.0), std::pair(".5", 0.5),
          std::pair("5.", 5.0), std::pair("\t7\r", 7.0),
          std::pair("0.30000000000000000000001", 0.3), std::pair("9007199254740993", 0x1p53)})
        EXPECT_EQ(wholeDecimal(text), value) << text;
    for (const char* text : {"",     " ",    "-",   "+",     "+-1",    "- 1",    ".",   "12abc",
                             "abc",  "0x10", "1e",  "1e999", "-1e999", "1e-999", "nan", "inf",
                             "-inf", "1,5",  "1 2", "1.2.3", "1;2",    "\"1\""})
        EXPECT_FALSE(wholeDecimal(text)) << text;
    EXPECT_FALSE(wholeDecimal(std::string_view("1\0", 2)));
}

TEST(WholeNumbers, OfIntegersHaveNoDecimals)
{
    EXPECT_EQ(wholeInteger(" +7 "), 7);
    EXPECT_EQ(wholeInteger("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(wholeInteger64("9007199254740993"), 9007199254740993);
    for (const char* text : {"2147483648", "1.0", "1e3", "0x10", "", "1 2", "+-1"})
        EXPECT_FALSE(wholeInteger(text)) << text;
    EXPECT_FALSE(wholeInteger64("9223372036854775808"));
}
