#pragma once

#include <cstdint>
#include <vector>

/// Which points stand in which rows. Points are counted from 0 in their lines' own order.
class ShownRows
{
public:
    /// \param points       in the order of the rows, each at most once
    /// \param isInOwnOrder whether they ascend
    /// \param pointCount   more than the largest of `points`
    void set(std::vector<std::uint32_t> points, bool isInOwnOrder, std::size_t pointCount);

    [[nodiscard]] int count() const { return static_cast<int>(m_points.size()); }
    /// \param row 0 to `count() - 1`
    [[nodiscard]] std::uint32_t pointAt(int row) const
    {
        return m_points[static_cast<std::size_t>(row)];
    }
    /// -1 when no row shows the point.
    [[nodiscard]] int rowOf(std::uint32_t point) const;

private:
    std::vector<std::uint32_t> m_points;
    std::vector<std::int32_t> m_rows; ///< of each point; empty while the points ascend
};
