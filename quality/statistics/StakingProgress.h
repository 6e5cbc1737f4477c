#pragma once

#include "quality/statistics/Moments.h"
#include "quality/statistics/SurveySample.h"

#include <cstdint>
#include <optional>
#include <span>
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
/// Of some results. \param places in `SurveySample::results`
[[nodiscard]] StakingProgress progressOf(const SurveySample& sample,
                                         std::span<const std::uint32_t> places);

/// How fast the design is staked now.
struct Pace
{
    static constexpr std::size_t kDays = 7;

    std::size_t workingDays = 0;  ///< the last `kDays` on which a point was staked, or fewer
    double pointsADay = kUnknown; ///< the mean of these days
    std::optional<std::size_t> daysNeeded; ///< of work, for what is left; none without a pace
    /// The day on which nothing is left any more, since 1970/01/01, with as many days off as these
    /// had. None when it is more than some hundred years away.
    std::optional<std::int64_t> endDay;
};

/// \param left design points that are not staked yet
[[nodiscard]] Pace paceOf(const StakingProgress& progress, std::size_t left);

} // namespace statistics
