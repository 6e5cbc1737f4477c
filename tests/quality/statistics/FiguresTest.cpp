#include "quality/statistics/Figures.h"

#include "quality/statistics/Distribution.h"
#include "tests/quality/statistics/MadeSurvey.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <random>

namespace {

using namespace statistics;

/// Lines of many points and of one; results without a design position, a number or a time.
MadeSurvey makeSurvey()
{
    std::mt19937 random(3);
    std::normal_distribution<double> deviation(0.05, 0.3);
    MadeSurvey survey;
    for (int i = 0; i < 4000; ++i) {
        const std::string line = i < 3 ? "lonely " + std::to_string(i) : std::to_string(i % 7);
        SurveyPoint& point = survey.measure(line, std::to_string(i) + (i % 11 == 0 ? "F" : ""));
        point.pointMark = i % 2;
        point.east += deviation(random);
        point.north += 2 * deviation(random);
        point.satelliteNumber = 6 + i % 20;
        point.solutionType = 4 + i % 2;
        point.surveyor = i % 3 == 0 ? "" : "李 " + std::to_string(random() % 4);
        point.instrumentSerialNumber = std::to_string(random() % 5);
        point.baseStationId = std::to_string(random() % 2);
        point.dateTime = i % 50 == 0 ? 0 : point.dateTime + i * 100000LL;
        if (i % 40 == 7)
            point.designNorth = point.designEast = 0;
        if (i % 90 == 11)
            point.east = i % 180 == 11 ? NAN : INFINITY;
    }
    return survey;
}

using Texts = std::function<std::string(const SurveyPoint& point)>;

/// A day or an hour of UTC+8.
std::string clock(const SurveyPoint& point, const char* form)
{
    const auto time = QDateTime::fromMSecsSinceEpoch(point.dateTime, Qt::OffsetFromUTC, 8 * 3600);
    return point.dateTime == 0 ? "" : time.toString(QLatin1String(form)).toStdString();
}

bool isNear(double value, long double expected)
{
    return std::fabs(value - expected) < 1e-12L;
}

/// Another way to the figures: all values, in two passes.
void expectEqual(const Moments& moments, const std::vector<long double>& values)
{
    ASSERT_EQ(moments.count(), values.size());
    const auto count = static_cast<long double>(values.size());
    long double mean = 0;
    long double squares = 0;
    long double fromMean = 0;
    for (const long double value : values) {
        mean += value / count;
        squares += value * value;
    }
    for (const long double value : values)
        fromMean += (value - mean) * (value - mean);
    EXPECT_TRUE(values.empty() || isNear(moments.mean(), mean));
    EXPECT_TRUE(values.empty() || isNear(moments.rms(), std::sqrt(squares / count)));
    EXPECT_TRUE(values.size() < 2
                    ? std::isnan(moments.standardDeviation())
                    : isNear(moments.standardDeviation(), std::sqrt(fromMean / (count - 1))));
}

void expectEqual(const Figures& figures, const std::vector<const SurveyPoint*>& points)
{
    std::vector<long double> east;
    std::vector<long double> distance;
    std::size_t fixed = 0;
    int fewest = 1000;
    for (const SurveyPoint* const point : points) {
        fixed += point->solutionType == 4 ? 1U : 0U;
        fewest = std::min(fewest, point->satelliteNumber);
        if (point->designNorth == 0 || !std::isfinite(point->east))
            continue;
        east.push_back(point->east - point->designEast);
        distance.push_back(std::hypot(east.back(), point->north - point->designNorth));
    }
    expectEqual(figures.east, east);
    expectEqual(figures.distance, distance);
    EXPECT_EQ(figures.distance.leftOut(), points.size() - distance.size());
    EXPECT_EQ(figures.fixed, fixed);
    EXPECT_TRUE(points.empty() || figures.satellites.minimum() == fewest);
    std::sort(distance.begin(), distance.end());
    std::size_t rank = 0;
    while (static_cast<long double>(rank) < 0.95L * static_cast<long double>(distance.size()))
        ++rank;
    EXPECT_TRUE(rank == 0 || isNear(figures.distanceP95, distance[rank - 1]));
}

} // namespace

TEST(Figures, AgreeWithPlainOnesInEveryGrouping)
{
    const MadeSurvey survey = makeSurvey();
    const SurveySample sample = survey.sample();
    const auto base = [](const SurveyPoint& point) { return point.baseStationId; };
    const auto day = [](const SurveyPoint& point) { return clock(point, "yyyy MM dd"); };
    const std::pair<std::vector<GroupKey>, Texts> groupings[] = {
        {{}, [](const SurveyPoint&) { return ""; }},
        {{GroupKey::Line}, [](const SurveyPoint& point) { return point.lineNumber; }},
        {{GroupKey::Day}, day},
        {{GroupKey::Rover}, [](const SurveyPoint& point) { return point.instrumentSerialNumber; }},
        {{GroupKey::Surveyor}, [](const SurveyPoint& point) { return point.surveyor; }},
        {{GroupKey::Base}, base},
        {{GroupKey::Hour}, [](const SurveyPoint& point) { return clock(point, "hh"); }},
        {{GroupKey::PointKind},
         [](const SurveyPoint& point) { return std::to_string(point.pointMark); }},
        {{GroupKey::Base, GroupKey::Day},
         [&](const SurveyPoint& point) { return base(point) + day(point); }}};
    for (const auto& [keys, textOf] : groupings) {
        std::map<std::string, std::vector<const SurveyPoint*>> groups; // in the order of the texts
        for (const auto& [number, line] : survey.results) {
            for (const SurveyPoint& point : line) {
                auto& group = groups[textOf(point)];
                if (point.pointNumber.find('F') == std::string::npos)
                    group.push_back(&point);
            }
        }
        auto figures = figuresOf(sample, groupBy(sample, keys));
        ASSERT_EQ(figures.size(), groups.size());
        auto next = figures.begin();
        for (const auto& [text, points] : groups) {
            SCOPED_TRACE(text);
            expectEqual(*next++, points);
        }
    }
}

TEST(Figures, TellThePointOfTheMaximumAndTheValuesOfAGroup)
{
    MadeSurvey survey;
    for (const char* number : {"1", "2", "3"})
        survey.measure("5", number).baseStationId = number;
    survey.results.find("5", "2")->east -= 7;
    survey.results.find("5", "3")->east += 2;
    const SurveySample sample = survey.sample();
    const Figures all = figuresOf(sample, groupBy(sample, {})).front();
    EXPECT_EQ(sample.results[all.distance.largestPlace()].point->pointNumber, "2");
    EXPECT_EQ(all.east.largest(), -7);
    const Grouping grouping = groupBy(sample, {GroupKey::Line, GroupKey::Base});
    EXPECT_EQ(grouping.value(sample, 1, GroupKey::Base).text, "2");
    EXPECT_EQ(grouping.value(sample, 1, GroupKey::Line).text, "5");
    EXPECT_EQ(membersOf(grouping), (std::vector<std::vector<std::uint32_t>>{{0}, {1}, {2}}));

    const SurveySample empty = MadeSurvey().sample();
    EXPECT_TRUE(std::isnan(figuresOf(empty, groupBy(empty, {})).at(0).distanceP95));
    EXPECT_TRUE(figuresOf(empty, groupBy(empty, {GroupKey::Day, GroupKey::Base})).empty());
}

TEST(Distribution, AnEndBelongsToTheClassBelowIt)
{
    MadeSurvey survey;
    const double distances[] = {0, 0.04, 0.0625, 0.2, 0.5, 0.5625, 5, 5.0625, 4e6, NAN};
    for (std::size_t i = 0; i < std::size(distances); ++i)
        survey.measure("1", std::to_string(i)).east += distances[i];
    survey.measure("1", "0F");
    const Distribution distribution = distributionOf(survey.sample());
    EXPECT_EQ(distribution.counts, (std::array<std::size_t, 9>{2, 1, 1, 0, 1, 1, 0, 1, 2}));
    EXPECT_EQ(distribution.notJudged, 1U);
    EXPECT_EQ(distribution.cumulated(4), 5U);
    EXPECT_EQ(distribution.cumulated(8), distribution.judged());
}
