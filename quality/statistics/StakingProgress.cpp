#include "quality/statistics/StakingProgress.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace statistics {

namespace {

constexpr double kFarthestDays = 100'000;

} // namespace

StakingProgress progressOf(const SurveySample& sample)
{
    std::vector<std::uint32_t> places(sample.results.size());
    std::iota(places.begin(), places.end(), 0U);
    return progressOf(sample, places);
}

StakingProgress progressOf(const SurveySample& sample, std::span<const std::uint32_t> places)
{
    StakingProgress progress;
    progress.designed = sample.design.designed;
    const std::vector<KeyValue>& dayValues = sample.valuesOf(GroupKey::Day);
    std::vector<DayProgress> days;
    days.reserve(dayValues.size());
    for (const KeyValue& value : dayValues)
        days.push_back({value.number, 0, 0, 0});
    for (const std::uint32_t place : places) {
        const Observation& result = sample.results[place];
        if (result.kind != ResultKind::Staked)
            continue;
        DayProgress& day = days[result.key(GroupKey::Day)];
        ++(result.point->pointMark != 0 ? day.receivers : day.sources);
    }
    std::size_t cumulated = 0;
    for (DayProgress& day : days) {
        cumulated += day.staked();
        day.cumulated = cumulated;
        if (day.day == KeyValue::kNoNumber)
            progress.undated = day.staked();
        else if (day.staked() > 0)
            progress.days.push_back(day);
    }
    return progress;
}

Pace paceOf(const StakingProgress& progress, std::size_t left)
{
    Pace pace;
    pace.workingDays = std::min(progress.days.size(), Pace::kDays);
    if (pace.workingDays == 0)
        return pace;
    const auto first = progress.days.end() - std::ptrdiff_t(pace.workingDays);
    std::size_t staked = 0;
    for (auto day = first; day != progress.days.end(); ++day)
        staked += day->staked();
    pace.pointsADay = double(staked) / double(pace.workingDays);
    const double needed = std::ceil(double(left) / pace.pointsADay);
    pace.daysNeeded = static_cast<std::size_t>(needed);
    const std::int64_t last = progress.days.back().day;
    const double calendarDays = double(last - first->day + 1) / double(pace.workingDays);
    if (needed * calendarDays <= kFarthestDays)
        pace.endDay = last + static_cast<std::int64_t>(std::ceil(needed * calendarDays));
    return pace;
}

} // namespace statistics
