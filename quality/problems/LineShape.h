#pragma once

#include "quality/problems/PointIndex.h"

#include <cstdint>
#include <span>
#include <vector>

/// A point of a line, as the checks of lines see it.
struct LinePoint
{
    PointPlace place;
    double number = 0;     ///< along the line
    double heightM = 0;    ///< NaN when it is not known
    double azimuthDeg = 0; ///< that it was given; NaN when there is none
};

/// Limits of lines; a check whose limit is 0 is off.
struct LineLimits
{
    double spacingShare = 0; ///< of the median spacing
    double gapNumbers = 0;   ///< longest row of missing numbers that may have been forgotten
    double azimuthDeg = 0;
    double reversedPoints = 0; ///< shortest stretch in reversed order
    double heightM = 0;
    /// How far stakes may be moved aside from their places; 0 for a design.
    double skidM = 0;
};

struct LineFinding
{
    enum class Kind
    {
        Spacing,  ///< value: to the other point, second: the line's median, metres
        Gap,      ///< value: how many numbers are missing; second: the distance, metres
        Hole,     ///< the same, too long to have been forgotten: no fault
        Azimuth,  ///< value: degrees; second: the distance from the straight line, metres
        Bearing,  ///< of the azimuths that were given: value and second of the neighbour, degrees
        Reversed, ///< `count` points from `at` to `other`
        Height    ///< value: above (or below) all neighbours, metres
    };
    static constexpr std::size_t kKinds = 7;

    Kind kind{};
    std::size_t at = 0;
    std::size_t other = 0; ///< a neighbour; with `Reversed` the last point
    double value = 0;
    double second = 0;
    std::uint32_t count = 0;
};

/// What a line is like as a whole.
struct LineMeasures
{
    double spacingM = 0; ///< median; 0 when the line is too short or all in one place
    double numberStep = 0;
    double spacingOffM = 0; ///< that a spacing may be off
};

/// Lines with fewer points have no spacing of their own.
inline constexpr std::size_t kFewestLinePoints = 5;

/// Looks for what breaks the pattern of a line, in the order of its points. A line that bends, that
/// goes in zigzag, or that changes its spacing for a stretch breaks nothing. A point has at most
/// one finding of its place. \param line      in ascending order of numbers, with places that are
/// numbers \param findings  get more
LineMeasures examineLine(std::span<const LinePoint> line, const LineLimits& limits,
                         std::vector<LineFinding>& findings);
