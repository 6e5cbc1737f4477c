#include "views/tables/ShownRows.h"

#include <algorithm>
#include <utility>

void ShownRows::set(std::vector<std::uint32_t> points, bool isInOwnOrder, std::size_t pointCount)
{
    m_points = std::move(points);
    m_rows.clear();
    if (isInOwnOrder) {
        m_rows.shrink_to_fit();
        return;
    }
    m_rows.assign(pointCount, -1);
    std::int32_t row = 0;
    for (const std::uint32_t point : m_points)
        m_rows[point] = row++;
}

int ShownRows::rowOf(std::uint32_t point) const
{
    if (!m_rows.empty())
        return m_rows[point];
    const auto found = std::lower_bound(m_points.begin(), m_points.end(), point);
    const bool isShown = found != m_points.end() && *found == point;
    return isShown ? static_cast<int>(found - m_points.begin()) : -1;
}
