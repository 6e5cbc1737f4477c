#pragma once

#include <QString>

#include <string>
#include <vector>

struct QualityLimits;
struct SurveyPoint;

/// One fault of a survey result in words: a row of the result list.
struct QualityRow
{
    std::string pointNumber;
    std::string lineNumber;
    const char* description; ///< source text; `text` translates it
    double value;            ///< -1 where several dilutions share a row, and so is the limit
    double limit;

    [[nodiscard]] QString text() const;
};

/// The faults that the result's quality code tells, from the units digit upwards, beside the limits
/// of now. The resurvey digit has no row.
void describeQuality(const SurveyPoint& point, const QualityLimits& limits,
                     std::vector<QualityRow>& rows);
