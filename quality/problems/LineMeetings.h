#pragma once

#include "quality/problems/PointIndex.h"

#include <functional>
#include <span>
#include <vector>

/// A line whose points follow each other in a list of points.
struct ListedLine
{
    std::size_t first = 0; ///< of its points, in the list
    std::size_t count = 0;
    std::vector<std::size_t> order{}; ///< its points that have numbers, in their order
    double spacingM = 0;              ///< 0 when it has none
};

/// Two points in one place.
struct CoincidentPoints
{
    std::size_t point;
    std::size_t other; ///< mostly before it in the list
    double distanceM;
};

/// Points of one line that lie between neighbours of another.
struct InterleavedLines
{
    std::size_t line; ///< that they lie in
    std::size_t other;
    std::size_t point; ///< the first of the line's points that has one behind it
    std::size_t otherPoint;
    std::uint32_t points;
};

struct LineMeetings
{
    std::vector<CoincidentPoints> coincident;  ///< in the order of the list
    std::vector<InterleavedLines> interleaved; ///< in the order of the lines
};

struct MeetingLimits
{
    double coincidentM = 0; ///< 0: no coincident points
    double interleaved = 0; ///< fewest points; 0: no interleaved lines
};

/// Looks where lines meet that should not. Lines that cross meet in a point or two.
///
/// Lines that lie beside each other are told apart by where they are across the main direction of
/// all lines, so that only those that may meet are looked at point by point.
/// \param lines   in the order of their points, which are all of `places`
/// \param index   of the same places; is called when it is needed
[[nodiscard]] LineMeetings findMeetings(std::span<const ListedLine> lines,
                                        std::span<const PointPlace> places,
                                        const std::function<const PointIndex&()>& index,
                                        const MeetingLimits& limits);
