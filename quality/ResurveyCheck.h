#pragma once

#include "model/PointLines.h"

class IDictionary;
class ProgressReporter;

/// What the resurvey check has found of a result (`SurveyPoint::isResurvey`).
namespace resurvey {
inline constexpr int kNone = 0;
inline constexpr int kFirst = 1; ///< it was surveyed again
inline constexpr int kAgain = 2; ///< it is a resurvey, and its first result was found
inline constexpr int kAlone = 3; ///< it is a resurvey without a first result on its line
} // namespace resurvey

/// What the resurvey check wrote into the quality code: 0 nothing, 1 a first result whose resurvey
/// is out of range, 2 a resurvey without its first result.
[[nodiscard]] int resurveyDigit(const SurveyPoint& point);

/// Compares each resurvey with the first result. A resurvey has the resurvey code of `parameters`
/// ("qc_param.ini") in its number; the first result has the number without it, on the same line.
///
/// Writes of both which they are and the number of the other; on the first result the differences
/// (resurvey minus first) and whether one of them is beyond its tolerance. A difference on its
/// tolerance passes. Of several resurveys of one result the last in the line's order counts.
/// Reports progress after each result, from 0 to 100 in every line. A difference that is no number
/// passes, and its result is named in the log.
///
/// With an empty code, which only a file that was edited by hand can have, every result is its own
/// resurvey, without differences.
/// \param planeUnitM metres a unit of the plane coordinates; the tolerances are metres
void checkResurveys(SurveyPoints& points, const IDictionary& parameters, ProgressReporter& progress,
                    double planeUnitM = 1);
