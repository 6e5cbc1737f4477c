#pragma once

#include "model/BaseStation.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

/// The base stations of the survey results, each once.
class BaseStations
{
public:
    /// Two places less than this apart are the same station.
    static constexpr double kSameM = 1e-5;

    /// Finds the first station at this place, or adds one. All places that are not finite count as
    /// one station.
    /// \returns the index in `list()`
    std::uint32_t findOrAdd(const BaseStation& station);

    [[nodiscard]] const std::vector<BaseStation>& list() const { return m_list; }

private:
    struct Cell
    {
        double north;
        double east;
        friend bool operator==(const Cell&, const Cell&) = default;
    };
    struct CellHash
    {
        std::size_t operator()(const Cell& cell) const;
    };

    [[nodiscard]] std::uint32_t findNear(const BaseStation& station, const Cell& cell) const;

    std::vector<BaseStation> m_list;
    std::unordered_multimap<Cell, std::uint32_t, CellHash>
        m_cells;                            ///< station indexes by grid cell, `kSameM` wide
    std::optional<std::uint32_t> m_nowhere; ///< the station whose place is not finite
};
