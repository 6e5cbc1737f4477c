#include "quality/QualityCheck.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/EventManager.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "protocol/Events.h"
#include "quality/QualityDescription.h"
#include "quality/QualityLimits.h"
#include "quality/QualityTests.h"
#include "tests/support/EventLog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/OnEvent.h"
#include "tests/support/Points.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// A result without a fault.
SurveyPoint soundPoint(const char* line = "1001", const char* number = "10015001")
{
    SurveyPoint point = surveyPoint(line, number);
    point.antennaHeight = 2;
    point.pdop = point.hdop = point.vdop = 1;
    point.satelliteNumber = 6;
    return point;
}

} // namespace

TEST(QualityCheck, EachFieldOfACommonFaultHasItsOwnSentence)
{
    SurveyPoint point = soundPoint();
    point.north = point.transversalDeviation = 2; // feet
    point.elevation = -2000;
    point.longitudinalDeviation = -1.64042;
    point.horizontalAccuracy = -0.50004;
    point.antennaHeight = 3;
    point.hdop = 0.4;
    point.vdop = 4;
    point.satelliteNumber = 3;
    QualityLimits limits = QualityLimits::from(basalt::Dictionary());
    limits.planeUnitM = 0.3048;
    point.qualityStandard = qualityCode(point, limits) + 20;
    const std::pair<SurveyColumn::Member, const char*> sentences[] = {
        {&SurveyPoint::north,
         "Horizontal distance from the design 0.61 m is over its limit 0.50 m."},
        {&SurveyPoint::east,
         "Horizontal distance from the design 0.61 m is over its limit 0.50 m."},
        {&SurveyPoint::elevation,
         "Difference in height from the design 2000 m is over its limit 1000 m."},
        {&SurveyPoint::transversalDeviation,
         "Transversal deviation 0.61 m is over its limit 0.50 m."},
        {&SurveyPoint::longitudinalDeviation,
         "Longitudinal deviation 0.50000002 m is over its limit 0.50000000 m."},
        {&SurveyPoint::horizontalAccuracy, "HRMS 0.50004 m is over its limit 0.50000 m."},
        {&SurveyPoint::antennaHeight, "Antenna height 3.00 m is over its limit 2.50 m."},
        {&SurveyPoint::hdop, "HDOP 0.40 is under its limit 0.50."},
        {&SurveyPoint::vdop, "VDOP 4 is over its limit 3."},
        {&SurveyPoint::satelliteNumber, "Number of satellites 3 is under its limit 6."},
    };
    for (const auto& [field, sentence] : sentences) {
        const QualityTest* const failed = failedTest(point, field);
        ASSERT_NE(failed, nullptr) << sentence;
        EXPECT_EQ(failureText(*failed, point, limits).toStdString(), sentence);
    }
    for (const SurveyColumn::Member& field :
         {SurveyColumn::Member(&SurveyPoint::pdop), SurveyColumn::Member(&SurveyPoint::remarks),
          SurveyColumn::Member(&SurveyPoint::verticalAccuracy),
          SurveyColumn::Member(&SurveyPoint::designNorth)})
        EXPECT_EQ(failedTest(point, field), nullptr);
}

TEST(QualityCheck, TheLogNamesResultsWhosePositionIsNoNumber)
{
    const LogCapture log;
    SurveyPoints points;
    ProgressReporter progress(nullptr);
    points.set(soundPoint());
    checkQuality(points, basalt::Dictionary(), progress);
    EXPECT_EQ(log.text(ILogger::Level::Warning), "");
    for (int number = 1; number <= 7; ++number) {
        SurveyPoint point = soundPoint("1001", std::to_string(number).c_str());
        (number % 2 == 0 ? point.north : point.elevation) = std::nan("");
        points.set(point);
    }
    checkQuality(points, basalt::Dictionary(), progress);
    EXPECT_TRUE(log.holds(": 7 (1001/1, 1001/2, 1001/3, 1001/4, 1001/5, ...)")) << log.text();
}

TEST(QualityCheck, WritesCodesAndReportsLineByLine)
{
    SurveyPoints points;
    for (const char* line : {"2", "10"}) {
        for (const char* number : {"1", "2", "3"}) {
            SurveyPoint point = soundPoint(line, number);
            point.qualityStandard = 77;
            point.satelliteNumber = number[0] == '2' ? 1 : 6;
            points.set(point);
        }
    }
    EventManager manager;
    std::vector<int> codes;
    const OnEvent reader(manager, events::kProgress, [&](auto*) { // while it is told of progress
        codes.push_back(points.find("10", "2")->qualityStandard);
    });
    const EventLog log(manager, events::kProgress);
    ProgressReporter progress(&manager);
    checkQuality(points, basalt::Dictionary(), progress);
    EXPECT_EQ(points.find("10", "1")->qualityStandard, 0);
    EXPECT_EQ(points.find("2", "2")->qualityStandard, 1000000);
    ASSERT_EQ(log.payloads().size(), 7U);
    EXPECT_EQ(log.payloads()[1], "text=Check Survey Line:10,value=66.6667,is_exec=0");
    EXPECT_EQ(log.payloads()[6], "show=0");
    EXPECT_EQ(codes.at(1), 1000000) << "reported before it was judged";
}
