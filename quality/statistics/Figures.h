#pragma once

#include "quality/statistics/Moments.h"
#include "quality/statistics/SurveySample.h"

#include <array>
#include <initializer_list>
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
[[nodiscard]] Grouping groupBy(const SurveySample& sample, std::initializer_list<GroupKey> keys);

/// The figures of a group. All but `counts` are those of the first measurements: of the staked and
/// the unplanned points, without the resurveys and repeats that check them.
struct Figures
{
    /// Of a group of lines, of point kinds, or of all. `hasDesign` is false for the others, since
    /// the design does not say who stakes a point, and when.
    DesignCount design;
    bool hasDesign = false;

    /// All results, by kind and verdict.
    std::array<std::array<std::size_t, kVerdicts>, kResultKinds> counts{};

    Moments east; ///< metres, measured minus design; places are those in `SurveySample::results`
    Moments north;
    Moments height;
    Moments distance; ///< on the plane: its `rms` is the RMS 2D, its `largest` the maximum
    double distanceP95 = kUnknown;
    Moments horizontalAccuracy;
    Moments verticalAccuracy;
    Moments pdop;       ///< `maximum` is the worst
    Moments satellites; ///< `minimum` is the fewest
    std::size_t fixed = 0;

    [[nodiscard]] std::size_t of(ResultKind kind) const;
    [[nodiscard]] std::size_t of(ResultKind kind, Verdict verdict) const;
    /// First measurements, all of them or those of a verdict.
    [[nodiscard]] std::size_t first() const;
    [[nodiscard]] std::size_t first(Verdict verdict) const;
    /// All results, or those of a verdict.
    [[nodiscard]] std::size_t all() const;
    [[nodiscard]] std::size_t all(Verdict verdict) const;

    /// Of the first measurements that are judged, and of all first measurements.
    [[nodiscard]] double shareInSpec() const;
    [[nodiscard]] double shareFailed() const;
    [[nodiscard]] double shareFixed() const;
    /// In one of the three differences; see `statistics::hasShift`.
    [[nodiscard]] bool hasShift() const;

    /// A line's verdict: it has a design and a result for each point of it; it has first
    /// measurements, and all are in spec.
    [[nodiscard]] bool isAllStaked() const;
    [[nodiscard]] bool isAllInSpec() const;
};

/// A group's figures, by number of the group.
[[nodiscard]] std::vector<Figures> figuresOf(const SurveySample& sample, const Grouping& grouping);

/// The groups with the largest share of failed among their judged results (resurveys and repeats
/// with them, since the check judges these, too); of equal shares the one with more failed, then
/// the earlier. A group without a failed result is none of them.
[[nodiscard]] std::vector<std::size_t> worstGroups(const std::vector<Figures>& figures,
                                                   std::size_t most = 20);

} // namespace statistics
