#include "quality/colors/Colorings.h"

#include "basalt_utilities/Dictionary.h"
#include "quality/colors/ColorPalette.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr std::int64_t kDayMs = 86400000;

/// A result within all default limits.
SurveyPoint goodPoint(const std::string& number = "1")
{
    SurveyPoint point = surveyPoint("1001", number);
    point.north = point.designNorth = 4000;
    point.east = point.designEast = 500;
    point.antennaHeight = 1.8;
    point.pdop = point.hdop = point.vdop = 1.5;
    point.satelliteNumber = 12;
    point.horizontalAccuracy = 0.01;
    point.solutionType = 4;
    return point;
}

QualityLimits defaultLimits()
{
    return QualityLimits::from(basalt::Dictionary());
}

/// Survey with one change in each result, all else good.
SurveyPoints surveyOf(std::initializer_list<std::function<void(SurveyPoint&)>> changes)
{
    SurveyPoints survey;
    int number = 0;
    for (const auto& change : changes) {
        SurveyPoint point = goodPoint(std::to_string(++number));
        change(point);
        survey.set(point);
    }
    return survey;
}

ResultColors colorsBy(const char* name, const SurveyPoints& survey,
                      const QualityLimits& limits = defaultLimits(), int hoursEast = 8)
{
    return resultColors(*findColoring(name), {survey, limits, basalt::LocalTimes(hoursEast)});
}

QString captionOf(const ResultColors& colors, const SurveyPoint& point)
{
    return colors.classes()[colors.classOf()(point)].caption;
}

/// The legend of all results: "caption count; ", from top to bottom.
std::string legendOf(const ResultColors& colors, const SurveyPoints& survey)
{
    std::vector<std::size_t> counts(colors.classes().size());
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint& point : line)
            ++counts[colors.classOf()(point)];
    }
    std::string rows;
    for (const lum::Legend::Entry& entry : colors.legend(counts).entries)
        rows += entry.text.toStdString() + ' ' + std::to_string(entry.count) + "; ";
    return rows;
}

} // namespace

TEST(Colorings, TheVerdictNamesTheWorstFault)
{
    struct Fault
    {
        const char* caption;
        std::function<void(SurveyPoint&)> make;
    };
    const Fault faults[] = {
        {"within limits", [](SurveyPoint& p) { p.north += 0.5; }}, // on its limit
        {"off its place", [](SurveyPoint& p) { p.north += 0.51; }},
        {"off its place", [](SurveyPoint& p) { p.elevation = 1001; }},
        {"off its place", [](SurveyPoint& p) { p.longitudinalDeviation = -0.6; }},
        {"poor fix", [](SurveyPoint& p) { p.referenceDistance = 10001; }},
        {"poor fix", [](SurveyPoint& p) { p.verticalAccuracy = 0.6; }},
        {"poor fix", [](SurveyPoint& p) { p.vdop = 0.2; }},
        {"poor fix", [](SurveyPoint& p) { p.satelliteNumber = 5; }},
        {"wrong antenna height", [](SurveyPoint& p) { p.antennaHeight = 0.3; }},
        {"wrong antenna height", [](SurveyPoint& p) { p.antennaHeight = 2.6; }},
        {"resurvey at fault", [](SurveyPoint& p) { p.qualityStandard = 10; }},
        {"no design position", [](SurveyPoint& p) { p.designEast = 0; }},
        {"poor fix", [](SurveyPoint& p) { p.designEast = 0, p.pdop = 9; }},
        {"off its place", [](SurveyPoint& p) { p.north += 1, p.pdop = 9, p.qualityStandard = 20; }},
        {"resurvey at fault", [](SurveyPoint& p) { p.pdop = 9, p.qualityStandard = 20; }},
        {"poor fix", [](SurveyPoint& p) { p.antennaHeight = 9, p.pdop = 9; }},
        {"within limits", [](SurveyPoint& p) { p.qualityStandard = 100000; }}, // an old verdict
    };
    const ResultColors colors = colorsBy("verdict", {});
    for (const Fault& fault : faults) {
        SurveyPoint point = goodPoint();
        fault.make(point);
        EXPECT_EQ(captionOf(colors, point), QLatin1String(fault.caption))
            << (&fault - std::begin(faults));
    }
    QualityLimits strict = defaultLimits();
    strict.pdop.max = 1.4;
    EXPECT_EQ(captionOf(colorsBy("verdict", {}, strict), goodPoint()), "poor fix"_q);
    EXPECT_EQ(colors.text(0), "Verdict: off its place"_q);
}

TEST(Colorings, SolutionsHaveTheWorstOnTop)
{
    const auto solution = [](int code) {
        return [code](SurveyPoint& point) { point.solutionType = code; };
    };
    const SurveyPoints survey = surveyOf({solution(4), solution(4), solution(2), solution(3),
                                          solution(5), solution(0), solution(6), solution(-1)});
    EXPECT_EQ(legendOf(colorsBy("solution", survey), survey),
              "invalid 1; differential 2; float 1; unknow 2; fixed 2; ");
}

TEST(Colorings, AccuraciesRiseToTheLimit)
{
    const auto accuracy = [](double value) {
        return [value](SurveyPoint& point) { point.horizontalAccuracy = value; };
    };
    const SurveyPoints survey =
        surveyOf({accuracy(0.008), accuracy(0.01), accuracy(0.0101), accuracy(-0.02),
                  accuracy(0.05), accuracy(0.4), accuracy(0.5), accuracy(0.51), accuracy(kNaN),
                  accuracy(0), accuracy(std::numeric_limits<double>::infinity())});
    EXPECT_EQ(legendOf(colorsBy("accuracy", survey), survey),
              "over the limit of 0.5 m 2; up to 0.5 m 2; up to 0.05 m 1; "
              "up to 0.02 m 2; up to 0.01 m 2; not told 2; ");
    QualityLimits strict = defaultLimits();
    strict.hrmsM = 0.02;
    EXPECT_EQ(legendOf(colorsBy("accuracy", survey, strict), survey),
              "over the limit of 0.02 m 5; up to 0.02 m 2; up to 0.01 m 2; "
              "not told 2; ");
    strict.hrmsM = 0;
    EXPECT_EQ(legendOf(colorsBy("accuracy", survey, strict), survey),
              "over the limit of 0 m 9; not told 2; ");
    EXPECT_EQ(captionOf(colorsBy("accuracy", {}), goodPoint()), "up to 0.5 m"_q);
}

TEST(Colorings, TheSevenCrewsWithTheMostResultsHaveColors)
{
    SurveyPoints survey;
    int number = 0;
    const auto add = [&](const std::string& surveyor, int count) {
        for (int i = 0; i < count; ++i) {
            SurveyPoint point = goodPoint(std::to_string(++number));
            point.surveyor = surveyor;
            point.instrumentSerialNumber = "7";
            survey.set(point);
        }
    };
    for (const char* name : {"赵", "h", "b", "d", "f", "g", "c"})
        add(name, name[0] == 'd' ? 3 : 2);
    add("a", 1);
    add("e", 1);
    add("", 4);
    const ResultColors colors = colorsBy("surveyor", survey);
    EXPECT_EQ(legendOf(colors, survey),
              "b 2; c 2; d 3; f 2; g 2; h 2; 赵 2; others (2) 2; not told 4; ");
    SurveyPoint later = goodPoint();
    later.surveyor = "new";
    EXPECT_EQ(colors.classes()[colors.classOf()(later)].color, palette::kOthers);
    EXPECT_EQ(legendOf(colorsBy("rover", survey), survey), "7 " + std::to_string(number) + "; ");
}

TEST(Colorings, TheLastSevenDaysHaveColorsInTheShownZone)
{
    SurveyPoints survey;
    for (int day = 0; day < 9; ++day) {
        SurveyPoint point = goodPoint(std::to_string(day));
        point.dateTime = (20000 + day) * kDayMs + kDayMs - 4 * 3600000; // 20 h in Greenwich
        survey.set(point);
    }
    SurveyPoint timeless = goodPoint("timeless");
    survey.set(timeless);
    EXPECT_EQ(legendOf(colorsBy("day", survey, defaultLimits(), 0), survey),
              "2024/10/12 1; 2024/10/11 1; 2024/10/10 1; 2024/10/09 1; 2024/10/08 1; "
              "2024/10/07 1; 2024/10/06 1; earlier 2; not told 1; ");
    const ResultColors inBeijing = colorsBy("day", survey, defaultLimits(), 8);
    EXPECT_EQ(legendOf(inBeijing, survey).substr(0, 14), "2024/10/13 1; ");
}
