#include "basalt_utilities/FixedDecimals.h"

#include "basalt_utilities/Numbers.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace {

std::string fixed(double value, int decimals)
{
    std::array<char, basalt::kFixedSize> buffer{};
    return {buffer.data(), basalt::writeFixed(buffer.data(), value, decimals)};
}

} // namespace

TEST(FixedDecimals, WriteWhatTheGeneralWayWrites)
{
    using Limits = std::numeric_limits<double>;
    for (const double value : {0.0,
                               -0.0,
                               -0.00001,
                               0.00005,
                               0.5,
                               1.5,
                               2.5,
                               0.125,
                               1.00005,
                               99999.99995,
                               4411825.12345,
                               -116.123456785,
                               1e11,
                               123456789012.34565,
                               9e14,
                               1e15,
                               1e300,
                               Limits::max(),
                               Limits::denorm_min(),
                               Limits::infinity(),
                               Limits::quiet_NaN()}) {
        for (int decimals = 0; decimals <= 9; ++decimals)
            EXPECT_EQ(fixed(value, decimals), basalt::formatFixed(value, decimals)) << value;
    }
    std::mt19937_64 random(7);
    for (int i = 0; i < 100000; ++i) {
        const auto ties = static_cast<double>(static_cast<std::int64_t>(random()) >> 24) / 20000;
        ASSERT_EQ(fixed(ties, 4), basalt::formatFixed(ties, 4));
    }
}

TEST(FixedDecimals, ReadWhatTheGeneralWayReads)
{
    for (const char* text : {"",
                             "-",
                             ".",
                             "-.5",
                             "5.",
                             "0",
                             "-0",
                             "4411825.5000",
                             " 12",
                             "12abc",
                             "1e3",
                             "+7",
                             "--7",
                             "9007199254740993",
                             "0.30000000000000004",
                             "123456789012345678",
                             "1234567890123456789",
                             "99999999999999999999999",
                             "0.000000000000000001",
                             "nan",
                             "1,5",
                             "0x10"}) {
        const double expected = basalt::parseNumber(text);
        const double value = basalt::readDecimal(text);
        EXPECT_TRUE(value == expected || (std::isnan(value) && std::isnan(expected))) << text;
        EXPECT_EQ(std::signbit(value), std::signbit(expected)) << text;
    }
    std::mt19937_64 random(8);
    for (int i = 0; i < 100000; ++i) {
        const std::string text = std::to_string(static_cast<std::int64_t>(random()) >> (i % 50)) +
                                 '.' + std::to_string(random() >> (i % 61));
        ASSERT_EQ(basalt::readDecimal(text), basalt::parseNumber(text)) << text;
    }
}

TEST(WholeNumbers, AreTheWholeTextOrNothing)
{
    using basalt::wholeDecimal;
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
    EXPECT_EQ(basalt::wholeInteger(" +7 "), 7);
    EXPECT_EQ(basalt::wholeInteger("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(basalt::wholeInteger64("9007199254740993"), 9007199254740993);
    for (const char* text : {"2147483648", "1.0", "1e3", "0x10", "", "1 2", "+-1"})
        EXPECT_FALSE(basalt::wholeInteger(text)) << text;
    EXPECT_FALSE(basalt::wholeInteger64("9223372036854775808"));
}

TEST(FixedDecimals, WriteSixDigitsAsTheGeneralWay)
{
    const auto check = [](double value) {
        std::array<char, basalt::kFixedSize> buffer{};
        const std::string text(buffer.data(), basalt::writeGeneral(buffer.data(), value));
        ASSERT_EQ(text, basalt::formatGeneral(value));
    };
    for (const double value :
         {0.0, -1.0, 0.5, 1.0, 1.5, 9.9999949, 9.999996, 99.99996, 100.0, 12.3456789, 99998.96,
          99999.96, 999999.7, 1e6, 1e-7, 1.0000005, std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()})
        check(value);
    for (int count = 1; count <= 700; ++count) {
        for (int done = 1; done <= count; ++done)
            check(done * 100.0 / count);
    }
}
