#include "quality/statistics/StakingProgress.h"

namespace statistics {

StakingProgress progressOf(const SurveySample& sample)
{
    StakingProgress progress;
    progress.designed = sample.design.designed;
    const std::vector<KeyValue>& dayValues = sample.valuesOf(GroupKey::Day);
    std::vector<DayProgress> days;
    days.reserve(dayValues.size());
    for (const KeyValue& value : dayValues)
        days.push_back({value.number, 0, 0, 0});
    for (const Observation& result : sample.results) {
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

} // namespace statistics
