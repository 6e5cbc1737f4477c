#include "design/Azimuth.h"

#include "lum_sdk/coords/Angles.h"
#include "tests/support/Literals.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr auto kDms = lum::AngleFormat::DegreesMinutesSeconds;
constexpr auto kDegrees = lum::AngleFormat::Degrees;

} // namespace

TEST(Azimuth, SinglePrecisionLosesNothingOfLargeCoordinates)
{
    const Azimuth azimuth = azimuthBetween(5123456.789, 412345.678, 5123466.789, 412355.678);
    EXPECT_NEAR(azimuth.degrees, 45, 1e-5);
    EXPECT_NEAR(azimuth.length, 14.142136, 2e-6);
}

TEST(Azimuth, SecondsNeverReadSixtyAndZeroHasNoSign)
{
    EXPECT_EQ(azimuthText(10.99999999, kDms), "11.000000"_q); // 59' 59.99996"
    EXPECT_EQ(azimuthText(-12.999999, kDms), "-13.000000"_q); // 59' 59.9964"
    EXPECT_EQ(azimuthText(-45.5, kDms), "-45.300000"_q);
    for (const auto format : {kDms, kDegrees})
        EXPECT_EQ(azimuthText(-1e-9, format), "0.000000"_q);
}

TEST(Azimuth, TextGoesThereAndBack)
{
    for (const double degrees : {-179.123456, -0.5, 0.0, 12.345678, 89.999999, 180.0}) {
        const auto read = azimuthOf(azimuthText(degrees, kDms), kDms);
        ASSERT_TRUE(read);
        EXPECT_NEAR(*read, degrees, 1.5e-6);
    }
    EXPECT_FALSE(azimuthOf(QString(), kDms));
    EXPECT_FALSE(azimuthOf("nan"_q, kDegrees));
}

TEST(Azimuth, FoldedIsBelow360)
{
    EXPECT_EQ(foldedAzimuth(-90), 270);
    EXPECT_EQ(foldedAzimuth(-180), 180);
    EXPECT_EQ(foldedAzimuth(359.5), 359.5);
    EXPECT_EQ(foldedAzimuth(360), 0);
    EXPECT_EQ(foldedAzimuth(-1e-20), 0);
    EXPECT_FALSE(std::signbit(foldedAzimuth(-360)));
}

TEST(Azimuth, OnlyNumbersWithAPointAreCoordinates)
{
    EXPECT_EQ(readCoordinate(" -4123456.789 "_q), -4123456.789);
    for (const char* text :
         {"", " ", "x", "12,5", "1e308", "1e999", "nan", "inf", "1 2", "0x10", "1000000001"})
        EXPECT_FALSE(readCoordinate(QString::fromLatin1(text))) << text;
}
