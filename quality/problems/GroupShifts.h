#pragma once

#include "quality/problems/GroupShift.h"
#include "quality/problems/ShiftDesign.h"
#include "quality/statistics/MeasuredPairs.h"

#include <vector>

/// Finds the results of a base or of a rover that are wrong by the same on a day.
///
/// Four fifths of the results of the group must be off by the same, by more than the limit and by
/// more than five times what they scatter, which is metres at most. What they are off is seen
/// - against the design. A group must stand out: twice as far off as any that is not shifted, and
///   that no shifted one explains.
///   Heights of the design that are no better than those of an elevation model may be off as a
///   whole, then the groups are compared with each other. On the plane, stakes that were moved
///   aside do not count: those with an obstacle, and those of a single line that all lie straight
///   beside it, not too far. A result that stands at another design point has a wrong name, and
///   does not count at all;
/// - at points that were measured twice, once within the group. Three of them are enough. Of two
///   groups that disagree the one is wrong that disagrees more often, or has fewer results; never
///   in height the one whose heights agree with the design.
///
/// A pole shifts heights alone. A result may be of a wrong base and of a wrong pole: how the two
/// are told apart is said in ShiftHeights.h, and for points measured twice in ShiftCause.h. When
/// one rover used the base, and that one alone, the antenna height and the height of the base that
/// they had on other days may tell; else it stays open, and one shift says both. Shifts of several
/// groups that are alike are one, see ShiftUnion.h.
///
/// \param pairs  of the results of the sample
[[nodiscard]] std::vector<GroupShift>
findGroupShifts(const statistics::SurveySample& sample,
                const std::vector<statistics::MeasuredPair>& pairs, const ShiftLimits& limits);
