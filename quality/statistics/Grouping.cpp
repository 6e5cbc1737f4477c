#include "quality/statistics/Grouping.h"

#include "quality/statistics/KeyTable.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace statistics {

namespace {

void groupByOne(const SurveySample& sample, GroupKey key, Grouping& grouping)
{
    grouping.groupCount = sample.valuesOf(key).size();
    grouping.places.resize(grouping.groupCount);
    std::iota(grouping.places.begin(), grouping.places.end(), 0U);
    std::transform(sample.results.begin(), sample.results.end(), grouping.groupOf.begin(),
                   [key](const Observation& result) { return result.key(key); });
}

/// Splits the groups by a further key.
void split(const SurveySample& sample, GroupKey key, Grouping& grouping)
{
    const std::uint64_t valueCount = sample.valuesOf(key).size();
    KeyTable<std::uint64_t> parts;
    for (std::size_t i = 0; i < sample.results.size(); ++i) {
        std::uint32_t& group = grouping.groupOf[i];
        group = parts.placeOf(group * valueCount + sample.results[i].key(key));
    }
    const std::vector<std::uint32_t> now = parts.sort();
    for (std::uint32_t& group : grouping.groupOf)
        group = now[group];
    grouping.groupCount = parts.values().size();
}

/// Finds the values of groups that all have results.
void setPlaces(const SurveySample& sample, Grouping& grouping)
{
    const std::size_t keyCount = grouping.keys.size();
    grouping.places.resize(grouping.groupCount * keyCount);
    for (std::size_t i = 0; i < sample.results.size(); ++i) {
        for (std::size_t key = 0; key < keyCount; ++key)
            grouping.places[grouping.groupOf[i] * keyCount + key] =
                sample.results[i].key(grouping.keys[key]);
    }
}

} // namespace

const KeyValue& Grouping::value(const SurveySample& sample, std::size_t group, GroupKey key) const
{
    const auto found = std::find(keys.begin(), keys.end(), key);
    Q_ASSERT(found != keys.end());
    const auto place = static_cast<std::size_t>(std::distance(keys.begin(), found));
    return sample.valuesOf(key)[places[group * keys.size() + place]];
}

Grouping groupBy(const SurveySample& sample, std::vector<GroupKey> keys)
{
    Grouping grouping;
    grouping.keys = std::move(keys);
    grouping.groupCount = 1;
    grouping.groupOf.resize(sample.results.size());
    if (grouping.keys.size() == 1) {
        groupByOne(sample, grouping.keys.front(), grouping);
    } else if (grouping.keys.size() > 1) {
        for (const GroupKey key : grouping.keys)
            split(sample, key, grouping);
        setPlaces(sample, grouping);
    }
    return grouping;
}

std::vector<std::vector<std::uint32_t>> membersOf(const Grouping& grouping)
{
    std::vector<std::vector<std::uint32_t>> members(grouping.groupCount);
    for (std::uint32_t i = 0; i < grouping.groupOf.size(); ++i)
        members[grouping.groupOf[i]].push_back(i);
    return members;
}

} // namespace statistics
