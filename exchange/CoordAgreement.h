#pragma once

#include "exchange/CoordPairs.h"

#include <cstddef>

/// What separates two coordinate systems, as their positions of the same points tell it.
///
/// The simplest explanation counts that nine tenths of the rows follow: on the plane none, a shift,
/// a rotation with a scale; in height none or a shift. Rows that were changed by hand therefore do
/// not hide what holds for all others. Lengths are in the unit of the positions.
struct CoordAgreement
{
    enum class Plane
    {
        Same,   ///< to 3 mm, as far as rounded coordinates tell
        Shift,  ///< constant to 1 cm
        Turned, ///< four parameters explain it to 1 cm or a millionth of the difference
        Other   ///< another datum or projection
    };
    enum class Height
    {
        Same,
        Shift,
        Other
    };

    std::size_t count = 0; ///< rows whose three differences are numbers; others do not count
    Plane plane = Plane::Same;
    Height height = Height::Same;
    double north = 0; ///< the shift, at the middle of the survey
    double east = 0;
    double up = 0;
    double rotationSeconds = 0; ///< clockwise from north, about the middle of the survey
    double scalePpm = 0;
    double remains = 0;        ///< the RMS on the plane of what rotation and scale leave
    double leastPlane = 0;     ///< the smallest difference on the plane
    double largestPlane = 0;   ///< the largest
    double leastUp = 0;        ///< the lowest difference in height, with its sign
    double largestUp = 0;      ///< the highest
    std::size_t strangers = 0; ///< rows that do not follow the explanation of plane or height
    double farthest = 0;       ///< the most by which one does not
    std::size_t farthestRow = 0;
};

[[nodiscard]] CoordAgreement coordAgreement(const CoordPairs& pairs);
