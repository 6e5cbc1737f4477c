#include "quality/RepeatChoice.h"

#include "tests/support/Points.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using Rule = RepeatChoice::Rule;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

SurveyPoint measured(const char* number, std::int64_t time, double north = 100)
{
    SurveyPoint point = surveyPoint("1001", number);
    point.dateTime = time;
    point.north = north;
    point.solutionType = 4;
    point.horizontalAccuracy = point.verticalAccuracy = 0.01;
    return point;
}

std::vector<RepeatedPoint> found(const SurveyPoints& points, double planeUnitM = 1)
{
    return repeatedPoints({}, points, "F", planeUnitM);
}

std::vector<std::string> numbersOf(const RepeatedPoint& point)
{
    std::vector<std::string> numbers;
    for (const SurveyPoint* const each : point.measured)
        numbers.push_back(each->pointNumber);
    return numbers;
}

/// The number that each rule but the mean keeps.
std::vector<std::string> keptOf(const SurveyPoints& points)
{
    std::vector<std::string> kept;
    const auto all = found(points);
    for (const Rule rule : {Rule::First, Rule::Last, Rule::MostAccurate})
        kept.push_back(RepeatChoice{rule}.bestOf(all.at(0)).pointNumber);
    return kept;
}

} // namespace

TEST(RepeatChoice, GathersAllMeasurementsOfAPoint)
{
    SurveyPoints points;
    for (const char* number : {"10015001", "10015001F", "10015001FF", "C10015001_2", "C10015001_10",
                               "C10015002_0", "C10015002_1",                 // without their point
                               "10015003F", "C10015004_0", "C", "10015005"}) // alone
        points.set(measured(number, 0));
    SurveyPoint elsewhere = measured("10015003", 0);
    elsewhere.lineNumber = "1002";
    points.set(elsewhere);
    const auto all = found(points);
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].name, (PointName{"1001", "10015001"}));
    EXPECT_EQ(numbersOf(all[0]), (std::vector<std::string>{"10015001", "10015001F", "10015001FF",
                                                           "C10015001_2", "C10015001_10"}));
    EXPECT_EQ(all[0].own, points.find("1001", "10015001"));
    EXPECT_EQ(all[1].name, (PointName{"1001", "10015002"}));
    EXPECT_EQ(all[1].own, nullptr);

    DesignPoints design;
    DesignPoint designed;
    designed.lineNumber = "1001";
    for (const char* number : {"10015001", "10015001F"}) { // a point of its own
        designed.pointNumber = number;
        design.set(designed);
    }
    EXPECT_EQ(repeatedPoints(design, points, "F", 1)[0].measured.size(), 4U);
    EXPECT_EQ(repeatedPoints({}, points, "", 1)[0].measured.size(), 3U);
}

TEST(RepeatChoice, KeepsTheFirstTheLastOrTheMostAccurate)
{
    SurveyPoints points;
    points.set(measured("1", 3000));
    points.set(measured("1F", 1000));
    points.set(measured("1FF", 2000)).horizontalAccuracy = 0.005;
    EXPECT_EQ(keptOf(points), (std::vector<std::string>{"1F", "1", "1FF"}));
    points.find("1001", "1FF")->solutionType = 5;      // a float solution thinks well of itself
    points.find("1001", "1F")->horizontalAccuracy = 0; // not known
    EXPECT_EQ(keptOf(points), (std::vector<std::string>{"1F", "1", "1"}));
    points.find("1001", "1F")->dateTime = 0; // no order of time
    EXPECT_EQ(keptOf(points), (std::vector<std::string>{"1", "1FF", "1"}));
    points.find("1001", "1")->north = points.find("1001", "1FF")->elevation = kNaN;
    EXPECT_EQ(keptOf(points), (std::vector<std::string>{"1F", "1F", "1F"}));
    points.find("1001", "1F")->east = kNaN;
    EXPECT_EQ(keptOf(points), (std::vector<std::string>{"1", "1FF", "1"}));
    EXPECT_EQ(found(points)[0].spreadM, 0);
}

TEST(RepeatChoice, TheMeanIsWeightedByTheAccuracies)
{
    SurveyPoints points;
    SurveyPoint& own = points.set(measured("1", 1, 4560000));
    own.horizontalAccuracy = 0.01; // weighs four times as much
    own.longitude = 179.9999;
    own.latitude = 40;
    own.designNorth = own.designEast = 4560000;
    own.elevation = 30;
    SurveyPoint& again = points.set(measured("1F", 2, 4560000.05));
    again.horizontalAccuracy = -0.02; // some controllers give a minus
    again.longitude = -179.9999;
    again.latitude = 40;
    again.elevation = 30.04;
    again.verticalAccuracy = 0; // not known: both weigh the same
    again.designNorth = again.designEast = 4560000;
    again.transversalDeviation = 0.1;
    again.epochNumber = 7;
    const RepeatChoice mean{Rule::WeightedMean, 0.05};
    const SurveyPoint result = mean.resultOf(found(points)[0]);
    EXPECT_NEAR(result.north, 4560000.01, 1e-8);
    EXPECT_NEAR(result.elevation, 30.02, 1e-8);
    EXPECT_NEAR(result.transversalDeviation, 0.02, 1e-9);
    EXPECT_NEAR(result.longitude, 179.99994, 1e-9);
    EXPECT_NEAR(result.horizontalAccuracy, 1 / std::sqrt(10000 + 2500), 1e-9);
    EXPECT_EQ(result.verticalAccuracy, 0.01); // that of the most accurate one
    EXPECT_EQ(result.epochNumber, 0);

    again.designNorth = 0; // one that does not know its design has no deviations
    points.find("1001", "1")->transversalDeviation = 0.3;
    EXPECT_NEAR(mean.resultOf(found(points)[0]).transversalDeviation, 0.3, 1e-9);
    EXPECT_EQ((RepeatChoice{Rule::Last}).resultOf(found(points)[0]).transversalDeviation, 0.3);

    points.set(measured("1FF", 3, kNaN));
    EXPECT_NEAR(mean.resultOf(found(points)[0]).north, 4560000.01, 1e-8);
    points.find("1001", "1F")->east = kNaN; // one is left
    EXPECT_EQ(mean.resultOf(found(points)[0]).north, 4560000);
}

TEST(RepeatChoice, WhatIsTooFarApartForAMeanStaysAsItIs)
{
    SurveyPoints points;
    points.set(measured("1", 1, 100));
    points.set(measured("1F", 2, 100.5));
    const auto leaves = [&](double toleranceM, double planeUnitM = 1) {
        return RepeatChoice{Rule::WeightedMean, toleranceM}.leaves(found(points, planeUnitM)[0]);
    };
    EXPECT_FALSE(leaves(0.5)); // on it passes
    points.find("1001", "1")->north = 4000000.05;
    points.find("1001", "1F")->north = 4000000.1;
    EXPECT_FALSE(leaves(0.05)); // also when the difference of two doubles is a little more
    points.find("1001", "1")->north = 4000000.5;
    points.find("1001", "1F")->north = 4000001;
    EXPECT_TRUE(leaves(0.49));
    EXPECT_FALSE(leaves(0.49, 0.3048)); // of a project in feet
    points.find("1001", "1F")->elevation = -0.6;
    EXPECT_TRUE(leaves(0.5));
    EXPECT_FALSE((RepeatChoice{Rule::Last, 0.1}).leaves(found(points)[0]));
}

TEST(RepeatChoice, OneResultOfAPointIsLeftUnderItsNumber)
{
    SurveyPoints points;
    SurveyPoint& own = points.set(measured("10015001", 1, 100));
    own.pointMark = 1;
    own.designNorth = own.designEast = 90;
    own.obstacle = "river";
    own.remarks = "wet";
    own.qualityStandard = 1011;
    own.isResurvey = 1;
    SurveyPoint& again = points.set(measured("C10015001_0", 2, 200));
    again.remarks = "dry";
    again.qualityStandard = 2021;
    points.set(measured("2", 1, 100));
    points.set(measured("2F", 2, 300));
    const auto all = found(points);
    const RepeatedPoint* const wanted[] = {&all[0], &all[1]};
    ResolvedRepeats resolved = resolveRepeats(wanted, {Rule::WeightedMean, 100});
    EXPECT_EQ(resolved.left, 1U); // of the two, the second
    resolved = resolveRepeats({wanted, 1}, {Rule::Last, 0});
    EXPECT_EQ(resolved.removed, 1U);
    EXPECT_EQ(resolved.names.lines().at("1001"),
              (std::vector<std::string>{"10015001", "C10015001_0"}));
    ASSERT_EQ(resolved.results.pointCount(), 1U);
    const SurveyPoint& result = *resolved.results.find("1001", "10015001");
    EXPECT_EQ(result.north, 200);
    EXPECT_EQ(result.pointMark, 1);
    EXPECT_EQ(result.designNorth, 90);
    EXPECT_EQ(result.obstacle, "river");
    EXPECT_EQ(result.remarks, "dry");
    EXPECT_EQ(result.qualityStandard, 2001);
    EXPECT_EQ(result.isResurvey, 0);
}
