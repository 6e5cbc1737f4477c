#pragma once

#include "model/PointLines.h"

#include <QString>

#include <array>
#include <string>
#include <vector>

class IDictionary;

/// A fault that the resurvey check has found: a row of the result list. North, east and elevation
/// stand side by side; the former two and their differences are in the unit of the project's
/// coordinate system, all else in metres.
struct ResurveyRow
{
    using Position = std::array<double, 3>;

    std::string pointNumber;
    std::string lineNumber;
    const char* description = ""; ///< in English; `text` translates it
    std::string pairedNumber;     ///< of the resurvey; empty without one
    Position own{};
    Position again{};      ///< 0 without a pair, and so are the differences
    Position difference{}; ///< own minus again, the other way round than on the result
    Position toleranceM{};
    std::array<bool, 3> isOut{}; ///< which differences are beyond their tolerance
    bool hasPair = false;

    [[nodiscard]] QString text() const;
};

/// A row for each result with a fault in its quality code, in the order of the results.
/// \param parameters "qc_param.ini"; the tolerances may have changed since the check
/// \param planeUnitM metres a unit of the plane coordinates
[[nodiscard]] std::vector<ResurveyRow>
resurveyRows(const SurveyPoints& points, const IDictionary& parameters, double planeUnitM = 1);

/// The fault of one result in words; empty when it has none.
[[nodiscard]] QString resurveyFault(const SurveyPoint& point);
