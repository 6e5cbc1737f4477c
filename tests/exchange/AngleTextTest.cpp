#include "exchange/AngleText.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace {

std::string written(int format, double degrees)
{
    std::array<char, AngleText::kMostSize> text{};
    return {text.data(), AngleText(format).write(text.data(), degrees)};
}

} // namespace

TEST(AngleText, IsWrittenInBothFormats)
{
    EXPECT_EQ(written(0, 30.123456789), "30.12345679");
    EXPECT_EQ(written(1, 30.5), "30deg30min0.000sec");
    EXPECT_EQ(written(1, 12.582438889), "12deg34min56.780sec");
    EXPECT_EQ(written(1, -12.582438889), "-12deg-34min-56.780sec");
    EXPECT_EQ(written(1, -0.5), "0deg-30min0.000sec");
    EXPECT_EQ(written(1, -0.0001), "0deg0min-0.360sec");
    EXPECT_EQ(written(1, 29.99999999999), "30deg0min0.000sec") << "no 60 seconds";
    EXPECT_EQ(written(1, 30 + 20 / 60.0), "30deg20min0.000sec");
    EXPECT_EQ(written(1, 1e300), written(0, 1e300));
}

TEST(AngleText, IsReadInBothForms)
{
    const AngleText angles(0);
    for (const auto& [text, degrees] :
         {std::pair("-30.25", -30.25), std::pair(" 1e1 ", 10.0),
          std::pair("30deg30min0.000sec", 30.5), std::pair("-30deg-30min-36sec", -30.51),
          std::pair("0deg-30min0sec", -0.5), std::pair("30deg30min36", 30.51),
          std::pair("xdeg30minysec", 0.5), std::pair("", 0.0), std::pair("30deg", 0.0),
          std::pair("30deg30", 0.0), std::pair("30min5sec", 0.0), std::pair("nan", 0.0),
          std::pair("1deg2deg3min4sec", 0.0)})
        EXPECT_DOUBLE_EQ(angles.read(text).value_or(0), degrees) << text;
}

TEST(AngleText, ComesBackToTheSameText)
{
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> any(-180, 180);
    const AngleText angles(1);
    for (int i = 0; i < 20000; ++i) {
        // Half of them are whole minutes, where a digit is lost first.
        const double angle = i % 2 == 0 ? any(random) : std::floor(any(random) * 60) / 60;
        const std::string text = written(1, angle);
        ASSERT_NEAR(angles.read(text).value(), angle, 0.00051 / 3600) << text;
        ASSERT_EQ(written(1, angles.read(text).value()), text);
    }
}
