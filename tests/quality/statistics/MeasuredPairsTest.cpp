#include "quality/statistics/MeasuredPairs.h"

#include "tests/quality/statistics/MadeSurvey.h"

#include <gtest/gtest.h>

namespace {

using namespace statistics;

/// "line: first again, first again; alone"
std::string textOf(const MeasuredPairs& found)
{
    std::string text;
    for (const MeasuredPair& pair : found.pairs)
        text += pair.first->lineNumber + ':' + pair.first->pointNumber + ' ' +
                pair.again->pointNumber + ", ";
    text += "alone";
    for (const SurveyPoint* const point : found.alone)
        text += ' ' + point->lineNumber + ':' + point->pointNumber;
    return text;
}

} // namespace

TEST(MeasuredPairs, ResurveysArePairedByTheirCode)
{
    MadeSurvey survey;
    for (const char* number : {"1001", "1001F", "1001FF", "F10F01", "f1001", "1002F", "1003.",
                               "1003", "1004FFF", "1004F", "测1001"})
        survey.measure("10", number);
    survey.measure("11", "1002");
    const std::pair<const char*, const char*> cases[] = {
        {"F", "10:1001 1001F, 10:1001 1001FF, 10:1001 F10F01, alone 10:1002F 10:1004F 10:1004FFF"},
        {"FF", "10:1001 1001FF, 10:1004F 1004FFF, alone"},
        {".", "10:1003 1003., alone"},
        {"测", "10:1001 测1001, alone"},
        {"", "alone"},
    };
    for (const auto& [code, expected] : cases)
        EXPECT_EQ(textOf(resurveyPairs(survey.results, code, 1)), expected);
}

TEST(MeasuredPairs, RepeatsArePairedByTheEightCharactersBehindTheLetter)
{
    MadeSurvey survey;
    for (const char* number : {"10012034", "C10012034_0", "C10012034_2", "C10012034_10", "1001",
                               "C1001", "C", "C99999999_0"})
        survey.measure("1001", number);
    survey.measure("1002", "C10012034_0");
    EXPECT_EQ(textOf(repeatPairs(survey.results, 1)),
              "1001:1001 C1001, 1001:10012034 C10012034_0, 1001:10012034 C10012034_2, "
              "1001:10012034 C10012034_10, alone 1001:C 1001:C99999999_0 1002:C10012034_0");
    const auto isWanted = [](const SurveyPoint& point) { return point.pointNumber == "C1001"; };
    EXPECT_EQ(textOf(repeatPairs(survey.results, 1, isWanted)), "1001:1001 C1001, alone");
}

TEST(MeasuredPairs, FiguresAreThoseOfAHandCalculation)
{
    MadeSurvey survey;
    for (const char* number : {"1", "2", "3"})
        survey.measure("1", number);
    SurveyPoint& one = survey.measure("1", "1F");
    one.east += 0.25;
    one.elevation -= 0.5;
    SurveyPoint& two = survey.measure("1", "2F");
    two.east -= 0.75;
    two.north += 1;
    survey.measure("1", "3F").east = NAN;
    const MeasuredPairs found = resurveyPairs(survey.results, "F", 0.5);
    const PairFigures figures = figuresOf(found.pairs);
    EXPECT_EQ(figures.east.mean(), (0.125 - 0.375) / 2);
    EXPECT_EQ(figures.east.count(), 2U);
    EXPECT_EQ(figures.east.leftOut(), 1U);
    EXPECT_DOUBLE_EQ(precisionOfOne(figures.east),
                     std::sqrt((0.125 * 0.125 + 0.375 * 0.375) / 2 / 2));
    EXPECT_EQ(figures.eastP95, 0.375);
    EXPECT_EQ(figures.east.largestPlace(), 1U);
    EXPECT_EQ(figures.north.maximum(), 0.5);
    EXPECT_EQ(figures.height.minimum(), -0.5); // not halved: heights are metres
    EXPECT_EQ(figures.heightP95, 0.5);
    EXPECT_DOUBLE_EQ(figures.distance.maximum(), 0.625);
}
