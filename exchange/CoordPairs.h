#pragma once

#include "lum_sdk/coords/ICoordTransform.h"

#include <cmath>
#include <span>

/// Positions in two coordinate systems: north, east, height. Both lists are of one length.
struct CoordPairs
{
    std::span<const CoordTriple> stored;
    std::span<const CoordTriple> transformed;

    [[nodiscard]] std::size_t size() const { return stored.size(); }

    /// Transformed minus stored.
    [[nodiscard]] CoordTriple difference(std::size_t row) const
    {
        const CoordTriple& from = stored[row];
        const CoordTriple& to = transformed[row];
        return {to.first - from.first, to.second - from.second, to.third - from.third};
    }
};

/// Whether all three are numbers; only such differences count.
[[nodiscard]] inline bool isNumber(const CoordTriple& triple)
{
    return std::isfinite(triple.first) && std::isfinite(triple.second) &&
           std::isfinite(triple.third);
}

/// The number, or 0 where it would be printed as "-0.000".
/// \param lastDigit the value of a 1 in the last decimal that is printed
[[nodiscard]] inline double withoutMinusZero(double number, double lastDigit = 0.001)
{
    return std::abs(number) < lastDigit / 2 ? 0 : number;
}
