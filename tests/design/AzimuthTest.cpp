#include "design/Azimuth.h"

#include "lum_sdk/coords/Angles.h"
#include "tests/support/Literals.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr auto kDms = lum::AngleFormat::DegreesMinutesSeconds;
constexpr auto kDegrees = lum::AngleFormat::Degrees;

struct Direction
{
    const char* name;
    double north, east; ///< destination minus start
    const char* degrees;
    const char* dms;
    const char* length;
};

class AzimuthDirections : public testing::TestWithParam<Direction>
{
};

} // namespace

TEST_P(AzimuthDirections, FromNorthTowardsEast)
{
    const auto& [name, north, east, degrees, dms, length] = GetParam();
    for (const auto& [startNorth, startEast] : {std::pair(0.0, 0.0), {5e6, 4e5}}) {
        const Azimuth azimuth =
            azimuthBetween(startNorth, startEast, startNorth + north, startEast + east);
        EXPECT_EQ(azimuthText(azimuth.degrees, kDegrees).toStdString(), degrees);
        EXPECT_EQ(azimuthText(azimuth.degrees, kDms).toStdString(), dms);
        EXPECT_EQ(lengthText(azimuth.length).toStdString(), length);
    }
}

// Worked out by hand, the last digits with the rounding of single precision.
INSTANTIATE_TEST_SUITE_P(
    All, AzimuthDirections,
    testing::Values(Direction{"NorthEast", 100, 100, "45.000000", "45.000000", "141.421356"},
                    Direction{"West", 0, -10, "-90.000000", "-90.000000", "10.000000"},
                    Direction{"South", -10, 0, "180.000000", "180.000000", "10.000000"},
                    Direction{"SamePlace", 0, 0, "0.000000", "0.000000", "0.000000"},
                    Direction{"NegativeZeros", -0.0, -0.0, "0.000000", "0.000000", "0.000000"},
                    Direction{"Pythagoras", 4, -3, "-36.869897", "-36.521163", "5.000000"}),
    [](const auto& test) { return test.param.name; });

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
