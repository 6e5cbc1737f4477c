#pragma once

#include "model/PointLines.h"

#include <QString>

#include <string>
#include <vector>

class IDictionary;
struct QualityLimits;

/// One fault of a survey result in words: a row of the result list.
struct QualityRow
{
    std::string pointNumber;
    std::string lineNumber;
    const char* description; ///< in English; `text` translates it
    double value; ///< lengths in metres; -1 in the row of several dilutions, and so is the limit
    double limit;
    /// In English, of a description that says too little; mostly empty.
    const char* explanation = "";

    [[nodiscard]] QString text() const;
    [[nodiscard]] QString explanationText() const; ///< translated
};

/// Adds a row for each fault that the result's quality code tells, from the units digit upwards.
/// The resurvey digit has no row. The rows show `limits`, which may have changed since the check.
void describeQuality(const SurveyPoint& point, const QualityLimits& limits,
                     std::vector<QualityRow>& rows);

/// The rows of all results, in their order.
/// \param parameters "qc_param.ini"
/// \param planeUnitM metres a unit of the plane coordinates
[[nodiscard]] std::vector<QualityRow>
describeQuality(const SurveyPoints& points, const IDictionary& parameters, double planeUnitM = 1);
