#include "map/MarkTable.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr MarkTable::Index kBlockSize = 64;
constexpr std::size_t kUsualName = 9; // bytes

/// How far `value` lies outside of the range.
double gap(double value, double low, double high)
{
    return value < low ? low - value : value > high ? value - high : 0;
}

} // namespace

void MarkTable::reserve(std::size_t marks)
{
    m_grid.reserve(marks);
    m_map.reserve(marks);
    m_names.reserve(marks * kUsualName);
    m_nameEnds.reserve(marks + 1);
}

void MarkTable::beginLine(std::string_view number)
{
    const auto firstBlock = static_cast<Index>(m_blocks.size());
    m_lines.push_back({std::string(number), firstBlock, firstBlock, {}});
}

bool MarkTable::add(std::string_view name, const GridPlace& grid, const QPointF& map)
{
    if (!std::isfinite(grid.north) || !std::isfinite(grid.east) || !std::isfinite(map.x()) ||
        !std::isfinite(map.y()))
        return false;
    const auto mark = static_cast<Index>(m_grid.size());
    Line& line = m_lines.back();
    if (line.firstBlock == line.endBlock || mark - m_blocks.back().first == kBlockSize) {
        m_blocks.push_back({mark, mark, {}, {}});
        ++line.endBlock;
    }
    Block& block = m_blocks.back();
    block.end = mark + 1;
    block.grid.add(grid.north, grid.east);
    block.seen.add(map);
    m_grid.push_back(grid);
    m_map.push_back(map);
    m_names.append(name);
    m_nameEnds.push_back(static_cast<Index>(m_names.size()));
    m_longestName = std::max(m_longestName, name.size());
    return true;
}

void MarkTable::alsoSeenAt(const QPointF& map)
{
    if (std::isfinite(map.x()) && std::isfinite(map.y()))
        m_blocks.back().seen.add(map);
}

void MarkTable::endLine()
{
    Line& line = m_lines.back();
    for (Index i = line.firstBlock; i < line.endBlock; ++i)
        line.seen.add(m_blocks[i].seen);
    if (line.firstBlock == line.endBlock)
        m_lines.pop_back();
}

std::string_view MarkTable::name(Index mark) const
{
    const Index start = m_nameEnds[mark];
    return std::string_view(m_names).substr(start, m_nameEnds[mark + 1] - start);
}

Bounds MarkTable::gridBounds() const
{
    Bounds all;
    for (const Block& block : m_blocks)
        all.add(block.grid);
    return all;
}

std::optional<MarkTable::Nearest> MarkTable::nearest(const GridPlace& to, double reach) const
{
    std::optional<Nearest> best;
    double limit = reach;
    for (const Block& block : m_blocks) {
        if (gap(to.north, block.grid.minX, block.grid.maxX) >= limit ||
            gap(to.east, block.grid.minY, block.grid.maxY) >= limit)
            continue;
        for (Index mark = block.first; mark < block.end; ++mark) {
            const double distance =
                std::hypot(m_grid[mark].north - to.north, m_grid[mark].east - to.east);
            if (distance < limit) {
                limit = distance;
                best = Nearest{mark, distance};
            }
        }
    }
    return best;
}

bool MarkTable::hasMarkIn(const QRectF& map) const
{
    return std::any_of(m_blocks.begin(), m_blocks.end(), [&](const Block& block) {
        return block.seen.touches(map) &&
               std::any_of(m_map.begin() + block.first, m_map.begin() + block.end,
                           [&](const QPointF& place) { return map.contains(place); });
    });
}

std::optional<MarkTable::Index> MarkTable::find(std::string_view name) const
{
    for (const Line& line : m_lines) {
        Index low = firstOf(line);
        Index high = endOf(line);
        while (low < high) {
            const Index middle = low + (high - low) / 2;
            if (this->name(middle) < name)
                low = middle + 1;
            else
                high = middle;
        }
        if (low < endOf(line) && this->name(low) == name)
            return low;
    }
    return std::nullopt;
}

const MarkTable::Line& MarkTable::lineOf(Index mark) const
{
    const auto behind = std::partition_point(
        m_lines.begin(), m_lines.end(), [&](const Line& line) { return firstOf(line) <= mark; });
    return *std::prev(behind);
}
