#pragma once

#include "model/PointLines.h"
#include "quality/problems/Problem.h"

#include <string>

/// A hash of the records that a problem is about, as they are stored, without what checks write on
/// them: while it is the same, nothing has changed that the problem could depend on. It is the same
/// after a save and in every later run. Of a group of results, which has no record, a hash of the
/// numbers of the problem as they are shown.
/// \returns 16 hexadecimal digits
[[nodiscard]] std::string fingerprintOf(const Problem& problem, const DesignPoints& design,
                                        const SurveyPoints& survey);
