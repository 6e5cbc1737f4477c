#pragma once

#include "quality/problems/GroupShift.h"
#include "quality/statistics/MeasuredPairs.h"

#include <vector>

/// From where on results count as shifted.
struct ShiftLimits
{
    double planeM = 0;     ///< 0 finds none on the plane
    double heightM = 0;    ///< 0 finds none in height
    std::size_t least = 0; ///< results that are compared with the design
};

/// Finds the results of a base or of a rover that are wrong by the same on a day.
///
/// Four fifths of the results of the group must be off by the same, by more than the limit and by
/// more than five times what they scatter, which is metres at most. What they are off is seen
/// - against the design. A group must stand out: twice as far off as any that is not shifted.
///   Heights of the design that are no better than those of an elevation model may be off as a
///   whole, then the groups are compared with each other. On the plane, stakes that were moved
///   aside do not count: those with an obstacle, and those of a single line that all lie straight
///   beside it or along it;
/// - at points that were measured twice, once within the group. Three of them are enough. Of two
///   groups that disagree the one is wrong that disagrees more often, or has fewer results; never
///   in height the one whose heights agree with the design.
///
/// A pole shifts heights alone. A shift belongs to the base when several rovers share it, and to
/// the pole when the other rovers of the base, or other bases of the rover, tell so. When one rover
/// used the base, and that one alone, the antenna height and the height of the base that they had
/// on other days may tell; else it stays open. When all groups share a shift, it is one of the
/// survey.
///
/// \param pairs  of the results of the sample
[[nodiscard]] std::vector<GroupShift>
findGroupShifts(const statistics::SurveySample& sample,
                const std::vector<statistics::MeasuredPair>& pairs, const ShiftLimits& limits);
