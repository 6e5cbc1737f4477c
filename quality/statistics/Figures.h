#pragma once

#include "quality/statistics/Average.h"
#include "quality/statistics/Grouping.h"
#include "quality/statistics/Moments.h"

#include <array>
#include <vector>

namespace statistics {

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
    Average horizontalAccuracy; ///< metres
    Average verticalAccuracy;
    Average pdop;       ///< `maximum` is the worst
    Average satellites; ///< `minimum` is the fewest
    std::size_t fixed = 0;

    [[nodiscard]] std::size_t of(ResultKind kind) const;
    [[nodiscard]] std::size_t of(ResultKind kind, Verdict verdict) const;
    /// First measurements, all of them or those of a verdict.
    [[nodiscard]] std::size_t first() const;
    [[nodiscard]] std::size_t first(Verdict verdict) const;
    /// All results, or those of a verdict.
    [[nodiscard]] std::size_t all() const;
    [[nodiscard]] std::size_t all(Verdict verdict) const;

    /// Of the first measurements that are judged.
    [[nodiscard]] double shareWithinLimits() const;
    /// Of all first measurements.
    [[nodiscard]] double shareFixed() const;
    /// In one of the three differences; see `statistics::hasShift`.
    [[nodiscard]] bool hasShift() const;

    /// It has a design, and a result for each point of it.
    [[nodiscard]] bool isAllStaked() const;
    /// It has first measurements, and all are within limits.
    [[nodiscard]] bool isAllWithinLimits() const;
};

/// A group's figures, by number of the group.
[[nodiscard]] std::vector<Figures> figuresOf(const SurveySample& sample, const Grouping& grouping);

/// The groups with the largest share of failed among their judged results (resurveys and repeats
/// with them, since the check judges these, too); of equal shares the one with more failed, then
/// the earlier. A group without a failed result is none of them.
[[nodiscard]] std::vector<std::size_t> worstGroups(const std::vector<Figures>& figures,
                                                   std::size_t most = 20);

} // namespace statistics
