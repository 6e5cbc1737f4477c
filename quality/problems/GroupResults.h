#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "model/PointLines.h"

#include <vector>

struct Problem;

/// The results that a problem without a point is about: those of a base or a rover on a day, of a
/// crew on a day, or of the whole survey. Empty for another problem, and when they are gone.
/// \param zone  the shown time zone, which days are of
[[nodiscard]] std::vector<const SurveyPoint*>
groupResults(const Problem& problem, const SurveyPoints& survey, basalt::LocalTimes zone);
