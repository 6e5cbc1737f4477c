#pragma once

#include "quality/problems/LineMeetings.h"

#include <span>
#include <vector>

/// Numbers that a line lacks between two of its points.
struct NumberGap
{
    std::size_t line = 0; ///< in the list of lines
    PointPlace from;
    PointPlace to;
};

/// Gaps that face a gap of the next line: a lake or a village was left out of the design there.
/// \param lines  in the order of their points, which are the places of `index`
/// \returns for each gap whether it does
[[nodiscard]] std::vector<bool> findPlannedHoles(std::span<const NumberGap> gaps,
                                                 std::span<const ListedLine> lines,
                                                 const PointIndex& index);
