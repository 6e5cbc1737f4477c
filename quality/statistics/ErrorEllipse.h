#pragma once

#include "quality/statistics/Moments.h"
#include "quality/statistics/SurveySample.h"

#include <span>

namespace statistics {

/// The 95 % value of chi-square with two degrees of freedom: -2 ln(1 - 0.95).
inline constexpr double kChiSquare95 = 5.991464547107981;

/// The ellipse that holds 95 % of offsets from the design when they are spread normally (Mikhail
/// and Gracie, Analysis and Adjustment of Survey Measurements, 1981, ch. 6). Its middle is the mean
/// offset; with the eigenvalues of their covariance matrix (n - 1), the half axes are the roots of
/// `kChiSquare95` times eigenvalue. All is `kUnknown` of less than three offsets.
struct ErrorEllipse
{
    std::size_t count = 0;
    double eastM = kUnknown; ///< the middle, measured minus design
    double northM = kUnknown;
    double semiMajorM = kUnknown;
    double semiMinorM = kUnknown;
    double azimuthDeg = kUnknown; ///< of the longer axis, clockwise from grid north, [0, 180)
};

/// Of the first measurements among some results that have a design position.
/// \param places in `SurveySample::results`
[[nodiscard]] ErrorEllipse errorEllipseOf(const SurveySample& sample,
                                          std::span<const std::uint32_t> places);

} // namespace statistics
