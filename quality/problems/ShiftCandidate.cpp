#include "quality/problems/ShiftCandidate.h"

#include <utility>

ShiftGroups::ShiftGroups(const statistics::SurveySample& sample, statistics::GroupKey key)
{
    using statistics::GroupKey;
    statistics::Grouping grouping = statistics::groupBy(sample, {GroupKey::Day, key});
    std::vector<ResultPlaces> members = statistics::membersOf(grouping);
    for (std::size_t i = 0; i < members.size(); ++i)
        groups.push_back(
            {key, grouping.value(sample, i, GroupKey::Day).number, std::move(members[i])});
    groupOf = std::move(grouping.groupOf);
}
