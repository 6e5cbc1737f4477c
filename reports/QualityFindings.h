#pragma once

#include "quality/statistics/Figures.h"
#include "quality/statistics/TestFigures.h"

#include <cstdint>
#include <vector>

struct ReportInput;

/// A result that failed.
struct QualityFailure
{
    std::uint32_t result = 0; ///< its place in the sample
    statistics::WorstFault worst;
};

/// What the quality check found in the results of a report.
struct QualityFindings
{
    explicit QualityFindings(const ReportInput& input);

    statistics::SurveySample sample;
    statistics::Figures all;
    std::vector<statistics::Figures> ofKind; ///< of sources and of receivers
    std::vector<statistics::Figures> ofLine; ///< by value of `GroupKey::Line`
    std::vector<statistics::TestFigures> tests;
    std::vector<QualityFailure> failures; ///< in the order of the sample

    [[nodiscard]] const statistics::Observation& resultOf(const QualityFailure& failure) const
    {
        return sample.results[failure.result];
    }
    [[nodiscard]] const std::string& nameOfLine(std::size_t line) const
    {
        return sample.valuesOf(statistics::GroupKey::Line)[line].text;
    }
};

/// Results that passed or failed, of all kinds.
[[nodiscard]] std::size_t judgedOf(const statistics::Figures& figures);
[[nodiscard]] std::size_t failedOf(const statistics::Figures& figures);
/// The failed ones among the judged, 0 to 1; not finite when none is judged.
[[nodiscard]] double shareFailedOf(const statistics::Figures& figures);
