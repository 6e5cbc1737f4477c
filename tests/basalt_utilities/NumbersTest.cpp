#include "basalt_utilities/Numbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>

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

} // namespace

class NumberText : public testing::TestWithParam<const char*>
{
};

TEST_P(NumberText, ReadsAsStrtodDoes)
{
    const double expected = byStrtod(GetParam());
    const double value = basalt::parseNumber(GetParam());
    if (std::isnan(expected))
        EXPECT_TRUE(std::isnan(value));
    else
        EXPECT_EQ(value, expected);
    EXPECT_EQ(std::signbit(value), std::signbit(expected));
}

INSTANTIATE_TEST_SUITE_P(Texts, NumberText,
                         testing::Values("", "0", "-0", "4411825.5000", " 12 ", "12abc", "+7",
                                         "+-7", "-+7", "--7", "- 7", ".5", "5.", "1,5", "1e3", "1e",
                                         "1e+", "1E-3x", "1e999", "-1e999", "1e-999", "0x10",
                                         "0x1.8p3", "0x", "inf", "-inf", "nan", "\t\n3.25",
                                         "0.1000000000000000055511151231257827", "F", "e5"));

TEST(Numbers, LeaveTheGermanLocaleAside)
{
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");

    EXPECT_DOUBLE_EQ(basalt::parseNumber("1234.5"), 1234.5);
    EXPECT_EQ(basalt::formatFixed(1234.56789, 4), "1234.5679");
    EXPECT_EQ(basalt::formatGeneral(12.5), "12.5");
    EXPECT_EQ(basalt::formatShortest(0.1), "0.1");
    std::setlocale(LC_ALL, "C");
}

TEST(Numbers, IntegersStopAtTheirLimits)
{
    EXPECT_EQ(basalt::parseInteger("2147483648"), INT_MAX);
    EXPECT_EQ(basalt::parseInteger("-2147483649"), INT_MIN);
    EXPECT_EQ(basalt::parseInteger("99999999999999999999"), INT_MAX);
    EXPECT_EQ(basalt::parseInteger("-99999999999999999999"), INT_MIN);
    EXPECT_EQ(basalt::parseInteger(" +42 of 50"), 42);
    EXPECT_EQ(basalt::parseInteger("+-3"), 0);
    EXPECT_EQ(basalt::parseInteger("x3"), 0);
}

TEST(Numbers, FormatsAsPrintfDoes)
{
    EXPECT_EQ(basalt::formatGeneral(100.0 / 3), "33.3333");
    EXPECT_EQ(basalt::formatGeneral(100), "100");
    EXPECT_EQ(basalt::formatGeneral(1234567), "1.23457e+06");
    EXPECT_EQ(basalt::formatFixed(-0.00004, 4), "-0.0000");
    EXPECT_EQ(basalt::formatFixed(std::numeric_limits<double>::max(), 2).size(), 312U);
    EXPECT_EQ(basalt::formatFixed(2.5, 0), "2"); // ties go to even, as in printf
}
