#pragma once

#include "quality/problems/GroupShift.h"
#include "quality/statistics/MeasuredPairs.h"

#include <vector>

/// What the results of each base and day differ on average, shifted or not: from the design, and
/// where they measured a point again from its first measurement. Outliers do not count.
/// \param pairs  of the results of the sample
[[nodiscard]] std::vector<GroupShift>
findGroupDifferences(const statistics::SurveySample& sample,
                     const std::vector<statistics::MeasuredPair>& pairs);
