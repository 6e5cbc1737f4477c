#pragma once

#include "quality/problems/SteadyOffset.h"
#include "quality/statistics/Grouping.h"

#include <cstdint>
#include <string>
#include <vector>

/// Results, as places in `SurveySample::results`, ascending.
using ResultPlaces = std::vector<std::uint32_t>;

/// The results of a base, or of a rover, on a day; at least one.
struct ShiftGroup
{
    statistics::GroupKey key = statistics::GroupKey::Base; ///< or `Rover`
    std::int64_t day = 0;
    ResultPlaces members;
};

/// All groups of one kind.
struct ShiftGroups
{
    ShiftGroups(const statistics::SurveySample& sample, statistics::GroupKey key);

    std::vector<ShiftGroup> groups;
    std::vector<std::uint32_t> groupOf; ///< of each result of the sample
};

/// A group that seems to be shifted.
struct ShiftCandidate
{
    const ShiftGroup* group = nullptr;
    SteadyOffset plane{};
    SteadyOffset height{};
    ResultPlaces shared{};   ///< results that are off by this
    std::size_t results = 0; ///< that can be compared
    bool isDropped = false;  ///< another candidate stands for it
    bool isUnclear = false;  ///< a base that the pole of its only rover may stand for
    std::string rover{};     ///< that one

    [[nodiscard]] bool isShifted() const { return plane.isFound || height.isFound; }
    [[nodiscard]] double share() const
    {
        return static_cast<double>(shared.size()) / static_cast<double>(results);
    }
    /// Whether a result that is off by this, metres, shares what was found.
    [[nodiscard]] bool isSharedBy(double eastM, double northM, double heightM) const
    {
        return (!height.isFound || height.sharesHeight(heightM)) &&
               (!plane.isFound || plane.sharesPlane(eastM, northM));
    }
};
