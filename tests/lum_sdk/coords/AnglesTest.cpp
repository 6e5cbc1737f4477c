#include "lum_sdk/coords/Angles.h"

#include "basalt_utilities/Numbers.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {
constexpr double kDegree = std::numbers::pi / 180;
}

TEST(Angles, GoBothWays)
{
    for (const auto& [degrees, dms] :
         {std::pair(0.0, 0.0), std::pair(-(12 + 34 / 60.0 + 56.789 / 3600), -12.3456789),
          std::pair(12 + 34 / 60.0, 12.34), // whole minutes without an exact double
          std::pair(-(7 / 60.0 + 5 / 3600.0), -0.0705), std::pair(405.5, 405.3)}) {
        EXPECT_NEAR(covertToAngle(degrees), dms, 1e-12);
        EXPECT_NEAR(convetFromAngle(dms), degrees, 1e-11);
        EXPECT_NEAR(Angle2Radian(dms), degrees * kDegree, 1e-13);
    }
}

TEST(Angles, EveryMinuteOfTheCircleKeepsItsMinute)
{
    for (int minute = 0; minute < 360 * 60; ++minute) {
        const double dms = minute / 60 + minute % 60 / 100.0;
        ASSERT_NEAR(convetFromAngle(dms), minute / 60.0, 1e-9) << dms;
        ASSERT_NEAR(covertToAngle(minute / 60.0), dms, 1e-9) << minute;
    }
}

TEST(Angles, NeverShowSixtySeconds)
{
    const double almost = 45 + 59 / 60.0 + 59.9999999 / 3600;
    EXPECT_EQ(basalt::formatFixed(covertToAngle(almost), 6), "46.000000");
    EXPECT_DOUBLE_EQ(covertToAngle(-almost), -46);

    EXPECT_EQ(lum::angleText(45 + 59 / 60.0 + 59.996 / 3600, 6), "46.000000");
    EXPECT_EQ(lum::angleText(45 + 59 / 60.0 + 59.994 / 3600, 6), "45.595999");
    EXPECT_EQ(lum::angleText(-(10 + 29 / 60.0 + 59.6 / 3600), 4), "-10.3000");
    EXPECT_EQ(lum::angleText(-1e-9, 6), "0.000000");
}
