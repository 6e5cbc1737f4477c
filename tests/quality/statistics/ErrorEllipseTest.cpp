#include "quality/statistics/ErrorEllipse.h"

#include "tests/quality/statistics/MadeSurvey.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <numeric>

namespace {

using namespace statistics;

constexpr double kMeanE = 0.3;
constexpr double kMeanN = -0.2;

ErrorEllipse ellipseOf(const MadeSurvey& survey)
{
    const SurveySample sample = survey.sample();
    std::vector<std::uint32_t> places(sample.results.size());
    std::iota(places.begin(), places.end(), 0U);
    return errorEllipseOf(sample, places);
}

/// Four results: `alongM` to both sides in an azimuth, and `acrossM` across it.
MadeSurvey cross(double azimuthDeg, double alongM, double acrossM)
{
    MadeSurvey survey;
    const double azimuth = azimuthDeg * std::numbers::pi / 180;
    const double east = std::sin(azimuth);
    const double north = std::cos(azimuth);
    const auto add = [&](const char* number, double e, double n) {
        SurveyPoint& point = survey.measure("1", number);
        point.east += kMeanE + e;
        point.north += kMeanN + n;
    };
    add("1", alongM * east, alongM * north);
    add("2", -alongM * east, -alongM * north);
    add("3", acrossM * north, -acrossM * east);
    add("4", -acrossM * north, acrossM * east);
    return survey;
}

} // namespace

TEST(ErrorEllipse, PointsWhereTheOffsetsAreSpread)
{
    for (const double azimuth : {0.0, 20.0, 45.0, 90.0, 110.0, 179.0}) {
        const ErrorEllipse ellipse = ellipseOf(cross(azimuth, 2, 0.5));
        EXPECT_EQ(ellipse.count, 4U);
        EXPECT_NEAR(ellipse.eastM, kMeanE, 1e-6);
        EXPECT_NEAR(ellipse.northM, kMeanN, 1e-6);
        EXPECT_NEAR(std::remainder(ellipse.azimuthDeg - azimuth, 180), 0, 1e-4) << azimuth;
        // The variances are 2 a^2 / 3 and 2 b^2 / 3; chi-square of 95 % from tables.
        EXPECT_NEAR(ellipse.semiMajorM, std::sqrt(5.991 * 2 * 4 / 3), 1e-3);
        EXPECT_NEAR(ellipse.semiMinorM, std::sqrt(5.991 * 2 * 0.25 / 3), 1e-3);
    }
}

TEST(ErrorEllipse, IsOfFirstMeasurementsWithADesignAlone)
{
    MadeSurvey survey = cross(30, 2, 0.5);
    survey.measure("1", "1F").east += 100;
    SurveyPoint& undesigned = survey.measure("1", "5");
    undesigned.designNorth = undesigned.designEast = 0;
    survey.measure("1", "6").east = NAN;
    EXPECT_EQ(ellipseOf(survey).count, 4U);
    EXPECT_NEAR(ellipseOf(survey).azimuthDeg, 30, 1e-4);
}

TEST(ErrorEllipse, IsKnownOfThreeAndMore)
{
    EXPECT_TRUE(std::isnan(ellipseOf(MadeSurvey()).semiMajorM));
    MadeSurvey survey;
    survey.measure("1", "1").east += 1;
    survey.measure("1", "2");
    EXPECT_TRUE(std::isnan(ellipseOf(survey).semiMajorM));
    survey.measure("1", "3").east -= 1;
    EXPECT_NEAR(ellipseOf(survey).semiMajorM, std::sqrt(5.991), 1e-3);
    EXPECT_NEAR(ellipseOf(survey).semiMinorM, 0, 1e-6);
    EXPECT_NEAR(ellipseOf(survey).azimuthDeg, 90, 1e-6);
}
