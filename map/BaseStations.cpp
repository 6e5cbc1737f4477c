#include "map/BaseStations.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

constexpr std::uint32_t kNone = UINT32_MAX;

bool isSame(const BaseStation& a, const BaseStation& b)
{
    return std::hypot(a.north - b.north, a.east - b.east) < BaseStations::kSameM;
}

} // namespace

std::size_t BaseStations::CellHash::operator()(const Cell& cell) const
{
    const std::hash<double> hash;
    return hash(cell.north) * 31 + hash(cell.east);
}

std::uint32_t BaseStations::findOrAdd(const BaseStation& station)
{
    const auto next = static_cast<std::uint32_t>(m_list.size());
    if (!std::isfinite(station.north) || !std::isfinite(station.east)) {
        if (!m_nowhere) {
            m_nowhere = next;
            m_list.push_back(station);
        }
        return *m_nowhere;
    }
    const Cell cell{std::floor(station.north / kSameM), std::floor(station.east / kSameM)};
    const std::uint32_t found = findNear(station, cell);
    if (found != kNone)
        return found;
    m_list.push_back(station);
    m_cells.emplace(cell, next);
    return next;
}

std::uint32_t BaseStations::findNear(const BaseStation& station, const Cell& cell) const
{
    std::uint32_t first = kNone;
    for (const double north : {cell.north - 1, cell.north, cell.north + 1}) {
        for (const double east : {cell.east - 1, cell.east, cell.east + 1}) {
            const auto [begin, end] = m_cells.equal_range({north, east});
            for (auto entry = begin; entry != end; ++entry) {
                if (isSame(m_list[entry->second], station))
                    first = std::min(first, entry->second);
            }
        }
    }
    return first;
}
