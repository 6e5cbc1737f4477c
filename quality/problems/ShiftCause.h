#pragma once

#include "quality/problems/ShiftCandidate.h"

/// Where a base and a rover share shifted results of a day, one of the two is wrong: drops the
/// other, or leaves the base, marked, where nothing tells. See GroupShifts.h for what tells.
void settleCauses(const statistics::SurveySample& sample, const ShiftGroups& allBases,
                  const ShiftGroups& allRovers, std::vector<ShiftCandidate>& bases,
                  std::vector<ShiftCandidate>& rovers);
