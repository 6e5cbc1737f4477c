#pragma once

#include "quality/statistics/SurveySample.h"

#include <array>

namespace statistics {

/// The upper ends of the classes of horizontal distance from the design, metres. A distance on an
/// end belongs to the class below it; beyond the last end there is one more class.
inline constexpr std::array<double, 8> kDistanceClassesM{0.05, 0.1, 0.2, 0.3, 0.5, 1, 2, 5};

/// How many first measurements lie how far from their design.
struct Distribution
{
    std::array<std::size_t, kDistanceClassesM.size() + 1> counts{};
    std::size_t notJudged = 0; ///< those without a distance

    void add(const Observation& result);
    [[nodiscard]] std::size_t judged() const;
    /// Of a class and all below it.
    [[nodiscard]] std::size_t cumulated(std::size_t distanceClass) const;
};

[[nodiscard]] Distribution distributionOf(const SurveySample& sample);

/// Those of sources and of receivers.
[[nodiscard]] std::array<Distribution, 2> distributionsOfKinds(const SurveySample& sample);

} // namespace statistics
