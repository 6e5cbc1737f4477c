#pragma once

#include "quality/problems/FinderInput.h"
#include "quality/problems/ProblemList.h"
#include "quality/statistics/SurveySample.h"

#include <unordered_set>

// Base coordinates, pole heights or the whole survey are wrong, see GroupShifts.h.
extern const ProblemKind kBaseShift;
extern const ProblemKind kPoleShift;
extern const ProblemKind kSurveyShift;
/// What each base and day differs, in order or not: a list that is off until it is wanted.
extern const ProblemKind kBaseDifference;

/// "2026/05/03". \param day  since 1970/01/01
[[nodiscard]] QString dayText(std::int64_t day);

using ResultSet = std::unordered_set<const SurveyPoint*>;

/// A problem for each shift of the results, which are those of the sample, and the list.
/// \param misnamed  results that are not compared with others of their points
void addShifts(const FinderInput& input, const statistics::SurveySample& sample,
               const ResultSet& misnamed, ProblemList& problems);
