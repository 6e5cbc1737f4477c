#pragma once

#include "quality/problems/ShiftCandidate.h"

#include <span>

/// How far the base and the pole of each result are off in height. One is wrong where `isFound`.
struct ShiftHeights
{
    static constexpr std::uint32_t kNone = ~0U;

    std::vector<SteadyOffset> ofBase; ///< by its group
    std::vector<SteadyOffset> ofRover;
    /// Of a base, the group of the rover that alone used it and used it alone; else `kNone`.
    std::vector<std::uint32_t> onlyRover;
};

/// Tells wrong bases from wrong poles.
///
/// A result is off by what its base is off and what its pole is off. A base and a rover that worked
/// together show the sum of the two, and the sums of a day are known for bases and rovers that are
/// connected by such work. These sums leave one height open: what is added to all the bases can be
/// taken from all the poles. It is chosen so that bases and poles together are off by least; then
/// half of them or more are right. When two choices are equal, the one with fewer wrong ones holds,
/// and then the one that leaves the poles right: for one base with one rover, that is the base.
///
/// A base or a pole is then wrong when four fifths of its results share what it is off, once what
/// the other one is off has been taken from them, see `SteadyOffset`, and when it stands out: by
/// twice what is left of any group when the wrong ones have been taken out.
///
/// \param heightsM  of each result of the groups, measured minus design; NaN when unknown
[[nodiscard]] ShiftHeights findShiftHeights(std::span<const double> heightsM,
                                            const ShiftGroups& bases, const ShiftGroups& rovers,
                                            const SteadyOffset::Rule& rule);
