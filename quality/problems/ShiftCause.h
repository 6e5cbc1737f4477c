#pragma once

#include "quality/problems/ShiftCandidate.h"

/// Where a base and a rover share shifted results of a day, one of the two is wrong: drops the
/// other, or leaves the base, marked, where nothing tells.
///
/// It is the base when its plane is off; the one of which more results share it; the base when
/// several rovers share it, the rover when several bases do; or the one that had another height
/// typed on other days.
void settleCauses(const statistics::SurveySample& sample, const ShiftGroups& allBases,
                  const ShiftGroups& allRovers, std::vector<ShiftCandidate>& bases,
                  std::vector<ShiftCandidate>& rovers);
