#include "quality/statistics/SurveySample.h"

#include "quality/QualityTests.h"
#include "quality/statistics/StakingProgress.h"
#include "quality/statistics/TestFigures.h"
#include "tests/quality/statistics/MadeSurvey.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace {

using namespace statistics;

SurveyPoint& lose(SurveyPoint& point)
{
    point.designNorth = point.designEast = 0;
    return point;
}

} // namespace

TEST(SurveySample, OnlyTheExactNumberStakesADesignPoint)
{
    MadeSurvey survey;
    for (const char* number : {"10010001", "10010002", "10010003", "1001000F"})
        survey.plan("1001", number);
    survey.plan("1002", "10020001", 0); // a line without a result
    survey.measure("0999", "10010003"); // a line without a design
    const std::pair<const char*, ResultKind> kinds[] = {
        {"10010001", ResultKind::Staked},    {"10010001F", ResultKind::Resurvey},
        {"10010002F", ResultKind::Resurvey}, {"10010002f", ResultKind::Unplanned},
        {"1001000F", ResultKind::Staked},    {"10019999", ResultKind::Unplanned},
        {"C10010003_0", ResultKind::Repeat}};
    std::map<std::string, ResultKind> expected{{"10010003", ResultKind::Unplanned}};
    for (const auto& [number, kind] : kinds) {
        survey.measure("1001", number);
        expected[number] = kind;
    }
    const SurveySample sample = survey.sample();
    for (const Observation& result : sample.results)
        EXPECT_EQ(result.kind, expected.at(result.point->pointNumber));
    EXPECT_EQ(sample.valuesOf(GroupKey::Line),
              (std::vector<KeyValue>{{"0999", 0}, {"1001", 0}, {"1002", 0}}));
    const std::pair<DesignCount, std::pair<std::size_t, std::size_t>> counts[] = {
        {sample.design, {5, 3}},          {sample.designOfLine[0], {0, 0}},
        {sample.designOfLine[1], {4, 2}}, {sample.designOfLine[2], {1, 1}},
        {sample.designOfKind[0], {1, 1}}, {sample.designOfKind[1], {4, 2}}};
    for (const auto& [count, numbers] : counts)
        EXPECT_EQ(std::pair(count.designed, count.left), numbers);
}

TEST(SurveySample, DifferencesAreMetresMeasuredMinusDesign)
{
    MadeSurvey survey;
    survey.limits.planeUnitM = 0.3048;
    SurveyPoint& point = survey.measure("1", "1");
    point.east = 500003;
    point.north = 3999996;
    point.elevation = 49;
    const Observation result = survey.sample().results[0];
    EXPECT_DOUBLE_EQ(result.eastM, 3 * 0.3048);
    EXPECT_DOUBLE_EQ(result.northM, -4 * 0.3048);
    EXPECT_DOUBLE_EQ(result.distanceM, 5 * 0.3048);
    EXPECT_EQ(result.heightM, -1); // heights are metres in every project
}

TEST(SurveySample, EachResultIsJudgedAnew)
{
    struct Case
    {
        const char* what;
        void (*spoil)(SurveyPoint& point);
        Verdict verdict;
        int code = 0;
    };
    const Case cases[] = {
        {"an old code", [](auto& p) { p.qualityStandard = 1; }, Verdict::WithinLimits},
        {"on the limit", [](auto& p) { p.east += 0.5; }, Verdict::WithinLimits},
        {"beyond it", [](auto& p) { p.east += 0.5001; }, Verdict::Failed, 1},
        {"no design", [](auto& p) { lose(p); }, Verdict::NotJudged},
        {"no design, inaccurate", [](auto& p) { lose(p).horizontalAccuracy = 1; }, Verdict::Failed,
         1000},
        {"no design, too high", [](auto& p) { lose(p).elevation = 2000; }, Verdict::Failed, 2},
        {"on an axis", [](auto& p) { p.east = p.designEast = 0; }, Verdict::WithinLimits},
        {"no position", [](auto& p) { p.north = NAN; }, Verdict::NotJudged},
        {"infinitely far", [](auto& p) { p.north = INFINITY; }, Verdict::Failed, 1},
        {"a dilution that is none", [](auto& p) { p.vdop = NAN; }, Verdict::NotJudged},
        {"no design height", [](auto& p) { p.designElevation = 0; }, Verdict::WithinLimits},
    };
    for (const Case& each : cases) {
        MadeSurvey survey;
        each.spoil(survey.measure("1", "1"));
        const Observation result = survey.sample().results[0];
        EXPECT_EQ(result.verdict, each.verdict) << each.what;
        EXPECT_EQ(result.code, each.code) << each.what;
    }
    MadeSurvey survey;
    survey.measure("1", "1").designElevation = 0;
    EXPECT_TRUE(std::isnan(survey.sample().results[0].heightM));
    EXPECT_EQ(survey.sample().results[0].distanceM, 0);
}

TEST(SurveySample, DaysAndHoursAreThoseOfTheZone)
{
    MadeSurvey survey;
    survey.measure("1", "1").dateTime = MadeSurvey::kNoonMs + 4 * 3600000LL; // 24:00 in UTC+8
    survey.measure("1", "2").dateTime = MadeSurvey::kNoonMs + 4 * 3600000LL - 1;
    survey.measure("1", "3").dateTime = 0;
    survey.measure("1", "4").dateTime = -1; // the last second of 1969
    const SurveySample sample = survey.sample(8);
    EXPECT_EQ(
        sample.valuesOf(GroupKey::Day),
        (std::vector<KeyValue>{{"", KeyValue::kNoNumber}, {"", 0}, {"", 19930}, {"", 19931}}));
    EXPECT_EQ(sample.valuesOf(GroupKey::Hour),
              (std::vector<KeyValue>{{"", KeyValue::kNoNumber}, {"", 0}, {"", 7}, {"", 23}}));
    EXPECT_EQ(survey.sample(0).valuesOf(GroupKey::Day).front().number, KeyValue::kNoNumber);
    EXPECT_EQ(survey.sample(0).valuesOf(GroupKey::Day)[1].number, -1);
}

TEST(SurveySample, AChoiceLeavesOutResultsButNotWhatIsStaked)
{
    MadeSurvey survey;
    survey.plan("1", "1");
    survey.plan("1", "2");
    survey.measure("1", "1").surveyor = "Li";
    survey.measure("2", "1").surveyor = "Li";
    const SurveySample sample =
        sampleOf({survey.design, survey.results, survey.limits, "", basalt::LocalTimes(0),
                  [](const SurveyPoint& point) { return point.surveyor != "Li"; }});
    EXPECT_TRUE(sample.results.empty());
    EXPECT_EQ(sample.design.left, 1U);
    EXPECT_EQ(sample.valuesOf(GroupKey::Line).size(), 1U); // "2" has neither design nor results
}

TEST(TestFigures, CountEachTestByKindOfPoint)
{
    MadeSurvey survey;
    survey.limits.antennaM = {3, 2.5}; // turned about: 2.75 is too high, and so not too low
    survey.measure("1", "1").antennaHeight = 2.75;
    survey.measure("1", "2").antennaHeight = 2.5;
    survey.results.find("1", "2")->pdop = INFINITY; // failed, though it is no number
    SurveyPoint& source = survey.measure("1", "3");
    source.pointMark = 0;
    source.pdop = NAN;
    lose(source);
    survey.measure("1", "3F").pdop = 4;
    std::map<const QualityTest*, TestFigures> tests;
    for (const TestFigures& figures : testFiguresOf(survey.sample()))
        tests[figures.test] = figures;
    const auto counts = [&](const QualityTest& test, std::size_t kind) {
        const TestCount& count = tests.at(&test).ofKind[kind];
        return std::vector{count.tested, count.failed, count.notJudged};
    };
    using Counts = std::vector<std::size_t>;
    EXPECT_EQ(counts(quality_test::kAntennaHigh, 1), (Counts{3, 1, 0}));
    EXPECT_EQ(counts(quality_test::kAntennaLow, 1), (Counts{3, 2, 0}));
    EXPECT_EQ(counts(quality_test::kPdop, 1), (Counts{3, 2, 0}));
    EXPECT_EQ(counts(quality_test::kPdop, 0), (Counts{0, 0, 1}));
    EXPECT_EQ(counts(quality_test::kDesignHorizontal, 0), (Counts{0, 0, 1}));
    EXPECT_EQ(tests.at(&quality_test::kAntennaLow).all().failed, 3U);
}
