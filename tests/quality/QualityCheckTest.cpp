#include "quality/QualityCheck.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Numbers.h"
#include "lum_sdk/events/EventManager.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "protocol/Events.h"
#include "quality/QualityDescription.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCode.h"
#include "tests/support/EventLog.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

QualityLimits defaults()
{
    return QualityLimits::from(basalt::Dictionary());
}

/// A result with every value on its limit, so that it passes.
SurveyPoint onEveryLimit(const char* line = "1001", const char* number = "10015001")
{
    SurveyPoint point;
    point.lineNumber = line;
    point.pointNumber = number;
    point.north = 4000000.3;
    point.east = 500000.4;
    point.designNorth = 4000000;
    point.designEast = 500000;
    point.elevation = 1100;
    point.designElevation = 100;
    point.referenceDistance = 10000;
    point.horizontalAccuracy = -0.5;
    point.verticalAccuracy = 0.5;
    point.antennaHeight = 2.5;
    point.pdop = 3;
    point.hdop = 0.5;
    point.vdop = 3;
    point.satelliteNumber = 6;
    point.transversalDeviation = -0.5;
    point.longitudinalDeviation = 0.5;
    return point;
}

struct Fault
{
    void (*spoil)(SurveyPoint& point);
    int code;
    const char* description; ///< of the only row
    double value;
    double limit;
};

// clang-format off
const Fault kFaults[] = {
    {[](auto& p) { p.north += 0.5; }, 1, "Design-Measure Horizontal Coord Out-range.", 0.894427, 0.5},
    {[](auto& p) { p.elevation = 1100.5; }, 2, "Design-Measure Vertical Coord Out-range.", 1000.5, 1000},
    {[](auto& p) { p.north = 4000003; p.east = 500004; p.elevation = -1000; },
     3, "Design-Measure Horizontal AND Vertical Coord Out-range.", 1100.011364, 1000.000125},
    {[](auto& p) { p.referenceDistance = 10000.01; }, 100, "Reference Station Dist Out-range.", 10000.01, 10000},
    {[](auto& p) { p.horizontalAccuracy = -0.6; }, 1000, "HRMS Out-range.", -0.6, 0.5},
    {[](auto& p) { p.verticalAccuracy = 0.6; }, 2000, "VRMS Accuracy Out-range.", 0.6, 0.5},
    {[](auto& p) { p.horizontalAccuracy = 3; p.verticalAccuracy = -4; },
     3000, "HRMS AND VRMS Accuracy Out-range.", 5, 0.707107},
    {[](auto& p) { p.antennaHeight = 2.51; }, 10000, "Antenna Too High.", 2.51, 2.5},
    {[](auto& p) { p.antennaHeight = 0.49; }, 20000, "Antenna Too Low.", 0.49, 0.5},
    {[](auto& p) { p.pdop = 4; }, 100000, "PDOP Out-range.", 4, 3},
    {[](auto& p) { p.pdop = 0.4; }, 100000, "PDOP Out-range.", 0.4, 0.5},
    {[](auto& p) { p.hdop = 0.49; }, 200000, "HDOP Out-range.", 0.49, 0.5},
    {[](auto& p) { p.pdop = p.hdop = 9; }, 300000, "PDOP AND HDOP Out-range.", -1, -1},
    {[](auto& p) { p.vdop = 3.01; }, 400000, "VDOP Out-range.", 3.01, 3},
    {[](auto& p) { p.pdop = p.vdop = 9; }, 500000, "PDOP AND VDOP Out-range.", -1, -1},
    {[](auto& p) { p.hdop = p.vdop = 9; }, 600000, "HDOP AND VDOP Out-range.", -1, -1},
    {[](auto& p) { p.pdop = p.hdop = p.vdop = 9; }, 700000, "PDOP, HDOP AND VDOP Out-range.", -1, -1},
    {[](auto& p) { p.satelliteNumber = 5; }, 1000000, "Satellite Number Insufficient.", 5, 6},
    {[](auto& p) { p.transversalDeviation = -0.6; }, 10000000, "Horizontal Accuracy Out-range.", -0.6, 0.5},
    {[](auto& p) { p.longitudinalDeviation = 0.6; }, 20000000, "Vertical Accuracy Out-range.", 0.6, 0.5},
    {[](auto& p) { p.transversalDeviation = 6; p.longitudinalDeviation = -8; },
     30000000, "Horizontal AND Vertical Accuracy Out-range.", 10, 0.707107},
};
// clang-format on

} // namespace

TEST(QualityCheck, EachFaultHasItsCodeAndItsRow)
{
    ASSERT_EQ(qualityCode(onEveryLimit(), defaults()), 0);
    for (const Fault& fault : kFaults) {
        SurveyPoint point = onEveryLimit();
        fault.spoil(point);
        point.qualityStandard = qualityCode(point, defaults());
        EXPECT_EQ(point.qualityStandard, fault.code) << fault.description;
        point.qualityStandard += 20; // the digit of the resurvey check has no row
        std::vector<QualityRow> rows;
        describeQuality(point, defaults(), rows);
        ASSERT_EQ(rows.size(), 1U) << fault.description;
        EXPECT_STREQ(rows[0].description, fault.description);
        EXPECT_NEAR(rows[0].value, fault.value, 1e-6) << fault.description;
        EXPECT_NEAR(rows[0].limit, fault.limit, 1e-6) << fault.description;
        EXPECT_EQ(rows[0].lineNumber + '/' + rows[0].pointNumber, "1001/10015001");
    }
}

TEST(QualityCheck, FaultsOfAllFamiliesStandSideBySide)
{
    SurveyPoint point; // without any measured value
    point.transversalDeviation = point.longitudinalDeviation = 1;
    point.referenceDistance = 1e9;
    point.horizontalAccuracy = point.verticalAccuracy = 1;
    point.north = 1;
    point.elevation = 1001;
    point.qualityStandard = qualityCode(point, defaults());
    EXPECT_EQ(point.qualityStandard, 31723103);
    std::vector<QualityRow> rows;
    describeQuality(point, defaults(), rows);
    ASSERT_EQ(rows.size(), 7U);
    EXPECT_STREQ(rows.front().description,
                 "Design-Measure Horizontal AND Vertical Coord Out-range.");
    EXPECT_STREQ(rows.back().description, "Horizontal AND Vertical Accuracy Out-range.");
}

TEST(QualityCheck, ReadsOddLimitsAsTheyAre)
{
    basalt::Dictionary parameters;
    parameters.set("hor_accu_max", "-2.5");
    parameters.set("pdop_max", "three");
    parameters.set("base_dist", "0.02 km");
    parameters.set("ant_height_min", "3");
    parameters.set("ant_height_max", "2");
    const QualityLimits limits = QualityLimits::from(parameters);
    SurveyPoint point = onEveryLimit();
    point.horizontalAccuracy = 2.5;
    point.referenceDistance = 20;
    point.antennaHeight = 2.5; // above the largest, below the smallest: too high
    EXPECT_EQ(qualityCode(point, limits), 110000) << "every PDOP is larger than 0";
    point.horizontalAccuracy = -2.6;
    point.referenceDistance = 21;
    EXPECT_EQ(qualityCode(point, limits), 111100);
}

TEST(QualityCheck, TheLogNamesResultsWhosePositionIsNoNumber)
{
    const LogCapture log;
    SurveyPoints points;
    ProgressReporter progress(nullptr);
    points.set(onEveryLimit());
    checkQuality(points, basalt::Dictionary(), progress);
    EXPECT_EQ(log.text(ILogger::Level::Warning), "");
    for (int number = 1; number <= 7; ++number) {
        SurveyPoint point = onEveryLimit("1001", std::to_string(number).c_str());
        (number % 2 == 0 ? point.north : point.elevation) = std::nan("");
        points.set(point);
    }
    checkQuality(points, basalt::Dictionary(), progress);
    EXPECT_TRUE(log.holds(": 7 (1001/1, 1001/2, 1001/3, 1001/4, 1001/5, ...)")) << log.text();
}

TEST(QualityCheck, WritesCodesAndReportsLineByLine)
{
    /// Reads a result while it is told of progress.
    struct Reader final : IEventHandler
    {
        explicit Reader(const SurveyPoints& checked) : points(checked) {}
        void handleEvent(const char* /*name*/, const char* /*payload*/, int /*reserved*/) override
        {
            codes.push_back(points.find("10", "2")->qualityStandard);
        }
        const SurveyPoints& points;
        std::vector<int> codes;
    };
    SurveyPoints points;
    for (const char* line : {"2", "10"}) {
        for (const char* number : {"1", "2", "3"}) {
            SurveyPoint point = onEveryLimit(line, number);
            point.qualityStandard = 77;
            point.satelliteNumber = number[0] == '2' ? 1 : 6;
            points.set(point);
        }
    }
    EventManager manager;
    const EventLog log(manager, events::kProgress);
    Reader reader(points);
    const EventSubscription subscription(reader, events::kProgress, manager);
    ProgressReporter progress(&manager);
    checkQuality(points, basalt::Dictionary(), progress);
    EXPECT_EQ(points.find("10", "1")->qualityStandard, 0);
    EXPECT_EQ(points.find("2", "2")->qualityStandard, 1000000);
    const std::vector<std::string> expected{"text=Check Survey Line:10,value=33.3333,is_exec=0",
                                            "text=Check Survey Line:10,value=66.6667,is_exec=0",
                                            "text=Check Survey Line:10,value=100,is_exec=0",
                                            "text=Check Survey Line:2,value=33.3333,is_exec=0",
                                            "text=Check Survey Line:2,value=66.6667,is_exec=0",
                                            "text=Check Survey Line:2,value=100,is_exec=0",
                                            "show=0"};
    EXPECT_EQ(log.payloads(), expected);
    EXPECT_EQ(reader.codes.at(1), 1000000) << "reported before it was judged";
}

TEST(ProgressOfALine, ShowsEveryPercentInGeneralNotation)
{
    payload::ProgressText text("L,1");
    for (const int total : {1, 3, 128, 997, 30001}) {
        for (int done = 0; done <= total; ++done) {
            const double percent = 100.0 * done / total;
            ASSERT_EQ(text.at(percent),
                      "text=\"L,1\",value=" + basalt::formatGeneral(percent) + ",is_exec=0");
        }
    }
    EXPECT_STREQ(text.at(9.9999999), "text=\"L,1\",value=10,is_exec=0");
    EXPECT_STREQ(text.at(99.99996), "text=\"L,1\",value=100,is_exec=0");
}

TEST(ResurveyCode, IsOneLetterButC)
{
    EXPECT_EQ(resurveyCode("f"), "F");
    EXPECT_EQ(resurveyCode("Z"), "Z");
    for (const char* bad : {"", "c", "C", "FF", "1", "É", "@", "[", "测", " F"})
        EXPECT_FALSE(resurveyCode(bad)) << bad;
}
