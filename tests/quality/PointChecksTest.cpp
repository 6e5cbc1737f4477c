#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/EventManager.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "protocol/Events.h"
#include "quality/EmptyPointCheck.h"
#include "quality/ResurveyCheck.h"
#include "quality/Verdicts.h"
#include "tests/support/EventLog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Points.h"

#include <gtest/gtest.h>

#include <cmath>

// What the sessions of tests/cases/checks do not show: progress, values that are no number, feet,
// and what stays on a result from an earlier run.

namespace {

using Payloads = std::vector<std::string>;

SurveyPoint result(const char* line, const char* number, double north = 100)
{
    SurveyPoint point = surveyPoint(line, number);
    point.north = north;
    return point;
}

} // namespace

TEST(EmptyPointCheck, ReportsEachLineAndOnlyTheEndWithoutOne)
{
    EventManager manager;
    const EventLog log(manager, events::kProgress);
    ProgressReporter progress(&manager);
    DesignPoints design;
    const SurveyPoints survey;
    checkEmptyPoints(design, survey, progress);
    EXPECT_EQ(log.payloads(), Payloads{"show=0"});
    for (const char* line : {"1", "2", "3"})
        design.set(designPoint(line, "P"));
    checkEmptyPoints(design, survey, progress);
    EXPECT_EQ(log.payloads(), (Payloads{"show=0", "text=Empty Check,value=33.3333,is_exec=0",
                                        "text=Empty Check,value=66.6667,is_exec=0",
                                        "text=Empty Check,value=100,is_exec=0", "show=0"}));
}

TEST(ResurveyCheck, WipesEarlierVerdictsAndReportsEveryResult)
{
    EventManager manager;
    const EventLog log(manager, events::kProgress);
    ProgressReporter progress(&manager);
    SurveyPoints points;
    SurveyPoint old = result("L", "1");
    old.qualityStandard = 1000021;
    old.isResurvey = resurvey::kFirst;
    old.pairedNumber = "1F";
    points.set(old);
    points.set(result("L", "2F"));
    checkResurveys(points, basalt::Dictionary(), progress);
    const SurveyPoint& wiped = *points.find("L", "1");
    EXPECT_EQ(wiped.qualityStandard, 1000001);
    EXPECT_EQ(wiped.isResurvey, resurvey::kNone);
    EXPECT_EQ(wiped.pairedNumber, "");
    EXPECT_EQ(log.payloads(),
              (Payloads{"text=Resurvey Check Survey Line:L,value=50,is_exec=0",
                        "text=Resurvey Check Survey Line:L,value=100,is_exec=0", "show=0"}));
}

TEST(ResurveyCheck, AFootOfDifferenceIsJudgedInMetres)
{
    ProgressReporter nobody(nullptr);
    for (const auto& [feet, digit] : {std::pair(0.098, 0), {0.099, 1}}) { // 0.0299 m, 0.0302 m
        SurveyPoints points;
        points.set(result("L", "1", 0));
        points.set(result("L", "1F", feet));
        checkResurveys(points, basalt::Dictionary(), nobody, 0.3048);
        EXPECT_EQ(resurveyDigit(*points.find("L", "1")), digit) << feet;
        EXPECT_DOUBLE_EQ(points.find("L", "1")->resurveyXDiff, feet);
    }
}

TEST(ResurveyCheck, APositionThatIsNoNumberPassesAndIsNamed)
{
    const LogCapture log;
    ProgressReporter nobody(nullptr);
    SurveyPoints points;
    points.set(result("L", "1"));
    points.set(result("L", "1F", std::nan("")));
    checkResurveys(points, basalt::Dictionary(), nobody);
    EXPECT_EQ(resurveyDigit(*points.find("L", "1")), 0);
    EXPECT_TRUE(log.holds(": 1 (L/1F)")) << log.text();
    const Verdicts first = verdictsOf({}, points);
    checkResurveys(points, basalt::Dictionary(), nobody);
    EXPECT_EQ(verdictsOf({}, points), first) << "a second run changes nothing";
}
