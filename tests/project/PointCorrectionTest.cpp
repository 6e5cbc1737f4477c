#include "project/PointCorrection.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/Host.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "tests/project/TestProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"

#include <gtest/gtest.h>

#include <cmath>

using Field = CorrectionFault::Field;

namespace {

/// A result whose heights have four decimals.
SurveyPoint highPoint()
{
    SurveyPoint point = surveyPoint("R1", "10012034");
    point.antennaHeight = 2;
    point.elevation = 123.4567;
    point.altitude = 130.1;
    point.seaHeight = -0.2;
    return point;
}

std::optional<Field> fieldAtFault(const SurveyCorrection& correction)
{
    const auto fault = faultOf(correction);
    EXPECT_TRUE(!fault || !fault->text.isEmpty());
    return fault ? std::optional(fault->field) : std::nullopt;
}

class PointCorrection : public testing::Test
{
protected:
    int correct(const PointName& name, const SurveyCorrection& correction)
    {
        return manager.correctSurveyPoint(name, correction, &outcome);
    }

    Host host;
    DataProcessDataManager manager{&host};
    SurveyPoints& points = manager.surveyPoints();
    Outcome outcome = Outcome::done();
};

} // namespace

TEST_F(PointCorrection, AHigherAntennaLowersTheHeightsToTheLastDigit)
{
    manager.surveyPoints().set(highPoint());
    const EventLog changes(host.eventManager(), events::kProjectModified);
    SurveyCorrection correction;
    correction.antennaHeightM = 1.8;
    EXPECT_EQ(correct({"R1", "10012034"}, correction), 1);
    const SurveyPoint& point = *manager.surveyPoints().find("R1", "10012034");
    EXPECT_EQ(basalt::formatShortest(point.elevation), "123.6567");
    EXPECT_EQ(basalt::formatShortest(point.altitude), "130.3");
    EXPECT_EQ(basalt::formatShortest(point.seaHeight), "0") << "and no -0";
    EXPECT_EQ(changes.events.size(), 1U);

    correction.antennaHeightM = 2;
    EXPECT_EQ(correct({"R1", "10012034"}, correction), 1);
    EXPECT_EQ(point.elevation, 123.4567) << "back where it was";
    correction.antennaHeightM = 3;
    correction.movesHeights = false;
    EXPECT_EQ(correct({"R1", "10012034"}, correction), 1);
    EXPECT_EQ(point.elevation, 123.4567);
    EXPECT_EQ(point.antennaHeight, 3);
}

TEST_F(PointCorrection, FaultsAreToldAndChangeNothing)
{
    const auto name = [](const char* line, const char* point) {
        SurveyCorrection correction;
        correction.lineNumber = line;
        correction.pointNumber = point;
        return correction;
    };
    for (const char* bad : {"", "  ", "R,1", "R\"1", "R\n1", "R\r1", "R\t1"}) {
        EXPECT_EQ(fieldAtFault(name(bad, "1")), Field::LineNumber) << bad;
        EXPECT_EQ(fieldAtFault(name("R1", bad)), Field::PointNumber) << bad;
    }
    EXPECT_EQ(fieldAtFault(name("R1", "C10012034_0")), Field::PointNumber);
    for (const char* good : {"R 1", "测线 1%", "C1001", "C1001203四", "1e5"})
        EXPECT_EQ(fieldAtFault(name(good, good)), std::nullopt) << good;
    SurveyCorrection height;
    for (const double bad : {10.0001, -10.0001, std::nan(""), HUGE_VAL}) {
        height.antennaHeightM = bad;
        EXPECT_EQ(fieldAtFault(height), Field::AntennaHeight) << bad;
    }
    for (const double good : {10.0, -10.0}) {
        height.antennaHeightM = good;
        EXPECT_EQ(fieldAtFault(height), std::nullopt) << good;
    }
    SurveyCorrection text;
    text.remarks = "dry, stony";
    EXPECT_EQ(fieldAtFault(text), Field::Remarks);
    text.remarks = "\"dry\"; 干，";
    EXPECT_EQ(fieldAtFault(text), std::nullopt);

    manager.surveyPoints().set(highPoint());
    EXPECT_EQ(correct({"R1", "10012034"}, name("", "")), 0);
    EXPECT_EQ(outcome.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(correct({"R1", "gone"}, {}), 0);
    EXPECT_TRUE(outcome.text().contains("gone"_q));
    EXPECT_FALSE(manager.isChanged());
}

// A check that runs between a correction and its undoing judges what was measured.
TEST_F(PointCorrection, AVerdictStaysWithItsMeasurementThroughAllStates)
{
    points.set(surveyPoint("R1", "1", "moved"));
    points.set(surveyPoint("R1", "2", "replaced")).qualityStandard = 7;
    std::shared_ptr<Edit> edit;
    manager.setEditHandler([&](const std::shared_ptr<Edit>& made) { edit = made; });
    SurveyCorrection correction;
    correction.pointNumber = "2";
    EXPECT_EQ(correct({"R1", "1"}, correction), 1);
    SurveyPoint& judged = *points.find("R1", "2");
    EXPECT_EQ(judged.remarks, "moved");
    judged.qualityStandard = 3;
    judged.pairedNumber = "2F";
    manager.exchange(edit, true);
    EXPECT_EQ(points.find("R1", "1")->qualityStandard, 3);
    EXPECT_EQ(points.find("R1", "1")->pairedNumber, "2F");
    EXPECT_EQ(points.find("R1", "2")->qualityStandard, 7) << "of another measurement";
    points.find("R1", "1")->qualityStandard = 4;
    manager.exchange(edit, false);
    EXPECT_EQ(points.find("R1", "2")->qualityStandard, 4);

    correction = {};
    correction.remarks = "dry";
    const SurveyPoint* const place = points.find("R1", "2");
    EXPECT_EQ(correct({"R1", "2"}, correction), 1);
    points.find("R1", "2")->qualityStandard = 5;
    manager.exchange(edit, true);
    EXPECT_EQ(points.find("R1", "2"), place) << "what is not moved can still be pointed to";
    EXPECT_EQ(place->remarks, "moved");
    EXPECT_EQ(place->qualityStandard, 5);
    EXPECT_EQ(points.pointCount(), 1U);
}
