#pragma once

#include "quality/statistics/SurveySample.h"

#include <vector>

namespace statistics {

struct DayProgress
{
    std::int64_t day = 0; ///< since 1970/01/01, in the shown time zone
    std::size_t sources = 0;
    std::size_t receivers = 0;
    std::size_t cumulated = 0; ///< staked on this day and before, those without a time with them

    [[nodiscard]] std::size_t staked() const { return sources + receivers; }
};

/// How the design was staked, day by day.
struct StakingProgress
{
    std::vector<DayProgress> days; ///< those on which a design point was staked, ascending
    std::size_t undated = 0;       ///< staked points without a time
    std::size_t designed = 0;
};

[[nodiscard]] StakingProgress progressOf(const SurveySample& sample);

} // namespace statistics
