#pragma once

#include "quality/statistics/SurveySample.h"

#include <cstdint>
#include <vector>

namespace statistics {

/// The results of a sample in groups that have equal values of some keys.
struct Grouping
{
    std::vector<GroupKey> keys;
    std::size_t groupCount = 0;
    std::vector<std::uint32_t> groupOf; ///< the group of each result of the sample
    std::vector<std::uint32_t> places;  ///< group after group, places in `SurveySample::values`

    /// The value of a group, such as its day.
    /// \param key of the grouping's keys
    [[nodiscard]] const KeyValue& value(const SurveySample& sample, std::size_t group,
                                        GroupKey key) const;
};

/// Groups by any keys together, ordered by the values of the first key, then of the second, and so
/// on. By one key, every value has its group: so a line without a result is there, too. By no key,
/// all results are one group.
[[nodiscard]] Grouping groupBy(const SurveySample& sample, std::vector<GroupKey> keys);

/// The results of each group, as places in `SurveySample::results`, ascending.
[[nodiscard]] std::vector<std::vector<std::uint32_t>> membersOf(const Grouping& grouping);

} // namespace statistics
