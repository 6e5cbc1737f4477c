#include "quality/statistics/ErrorEllipse.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace statistics {

namespace {

/// Calls `use` with the offset of each result that counts.
template <class Use>
void forEachOffset(const SurveySample& sample, std::span<const std::uint32_t> places, Use use)
{
    for (const std::uint32_t place : places) {
        const Observation& result = sample.results[place];
        if (result.isFirst() && std::isfinite(result.eastM) && std::isfinite(result.northM))
            use(result.eastM, result.northM);
    }
}

} // namespace

ErrorEllipse errorEllipseOf(const SurveySample& sample, std::span<const std::uint32_t> places)
{
    Moments east;
    Moments north;
    forEachOffset(sample, places, [&](double eastM, double northM) {
        east.add(eastM);
        north.add(northM);
    });
    ErrorEllipse ellipse;
    ellipse.count = east.count();
    if (ellipse.count < 3)
        return ellipse;
    ellipse.eastM = east.mean();
    ellipse.northM = north.mean();
    double products = 0;
    forEachOffset(sample, places, [&](double eastM, double northM) {
        products += (eastM - ellipse.eastM) * (northM - ellipse.northM);
    });
    const double varianceE = east.standardDeviation() * east.standardDeviation();
    const double varianceN = north.standardDeviation() * north.standardDeviation();
    const double covariance = products / double(ellipse.count - 1);
    const double middle = (varianceE + varianceN) / 2;
    const double half = std::hypot((varianceN - varianceE) / 2, covariance);
    ellipse.semiMajorM = std::sqrt(kChiSquare95 * (middle + half));
    ellipse.semiMinorM = std::sqrt(kChiSquare95 * std::max(0.0, middle - half));
    const double azimuth = std::atan2(2 * covariance, varianceN - varianceE) / 2; // from north
    ellipse.azimuthDeg = std::fmod(azimuth * 180 / std::numbers::pi + 180, 180);
    return ellipse;
}

} // namespace statistics
