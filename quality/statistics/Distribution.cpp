#include "quality/statistics/Distribution.h"

#include "quality/QualityLimits.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace statistics {

std::size_t Distribution::judged() const
{
    return std::accumulate(counts.begin(), counts.end(), std::size_t(0));
}

std::size_t Distribution::cumulated(std::size_t distanceClass) const
{
    const auto end = counts.begin() + static_cast<std::ptrdiff_t>(distanceClass) + 1;
    return std::accumulate(counts.begin(), end, std::size_t(0));
}

void Distribution::add(const Observation& result)
{
    if (!result.isFirst())
        return;
    if (!std::isfinite(result.distanceM)) {
        ++notJudged;
        return;
    }
    const auto* const end = std::lower_bound(kDistanceClassesM.begin(), kDistanceClassesM.end(),
                                             result.distanceM - kRoundingM);
    ++counts[static_cast<std::size_t>(end - kDistanceClassesM.begin())];
}

Distribution distributionOf(const SurveySample& sample)
{
    Distribution distribution;
    for (const Observation& result : sample.results)
        distribution.add(result);
    return distribution;
}

std::array<Distribution, 2> distributionsOfKinds(const SurveySample& sample)
{
    std::array<Distribution, 2> kinds;
    for (const Observation& result : sample.results)
        kinds[result.key(GroupKey::PointKind)].add(result);
    return kinds;
}

} // namespace statistics
