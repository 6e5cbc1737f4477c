#pragma once

#include "quality/statistics/Distribution.h"
#include "quality/statistics/Figures.h"
#include "quality/statistics/Grouping.h"
#include "quality/statistics/MeasuredPairs.h"

#include <QString>

#include <array>
#include <vector>

struct ReportInput;

/// The results by one key, with the figures of each value.
struct StatisticsGroups
{
    statistics::GroupKey key = statistics::GroupKey::Line;
    statistics::Grouping grouping;
    std::vector<statistics::Figures> figures;
};

/// Points measured twice, and the figures of their differences.
struct StatisticsPairs
{
    statistics::MeasuredPairs found;
    statistics::PairFigures figures;
};

/// Everything that the workbook "Quality statistics" tells. Valid as long as the points that it was
/// made of.
struct StatisticsFigures
{
    statistics::SurveySample sample;
    statistics::Figures all;
    std::vector<statistics::Figures> ofKind; ///< sources, receivers
    std::array<StatisticsGroups, 5> groups;  ///< lines, days, rovers, surveyors, bases
    statistics::Distribution distribution;
    std::array<statistics::Distribution, 2> distributionOfKind; ///< sources, receivers
    StatisticsPairs resurveys;
    StatisticsPairs repeats;

    /// Of the results of the chosen period and surveyors.
    [[nodiscard]] static StatisticsFigures from(const ReportInput& input);

    /// The result at which a difference is largest; null when there is none.
    [[nodiscard]] const SurveyPoint* largestOf(const statistics::Moments& moments) const;
    /// 95 % of the first measurements have no larger value, the sign aside.
    [[nodiscard]] double p95(double statistics::Observation::*value) const;
};

/// The key's name in the singular, translated: "Rover".
[[nodiscard]] QString statisticsKeyName(statistics::GroupKey key);

/// A value of a key as the user reads it: "2025-05-15" of a day.
[[nodiscard]] QString statisticsKeyText(statistics::GroupKey key,
                                        const statistics::KeyValue& value);
