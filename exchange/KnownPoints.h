#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

/// The points that stand before an import: tells those that it replaces from those that its file
/// holds twice. Eight bytes a point.
class KnownPoints
{
public:
    template <class Points>
    explicit KnownPoints(const Points& points)
    {
        m_keys.reserve(points.pointCount());
        for (const auto& [number, line] : points) {
            for (const auto& point : line)
                m_keys.push_back(keyOf(point));
        }
        std::sort(m_keys.begin(), m_keys.end());
        m_isTaken.resize(m_keys.size());
    }

    /// True the first time for a point that stood there.
    template <class Point>
    bool take(const Point& point)
    {
        const std::uint64_t key = keyOf(point);
        const auto found = std::lower_bound(m_keys.begin(), m_keys.end(), key);
        if (found == m_keys.end() || *found != key)
            return false;
        const auto place = static_cast<std::size_t>(found - m_keys.begin());
        const bool isFirst = !m_isTaken[place];
        m_isTaken[place] = true;
        return isFirst;
    }

private:
    template <class Point>
    static std::uint64_t keyOf(const Point& point)
    {
        const std::hash<std::string_view> hash;
        constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15; // 2^64 over the golden ratio
        return hash(point.lineNumber) * kSpread + hash(point.pointNumber);
    }

    std::vector<std::uint64_t> m_keys; ///< sorted
    std::vector<bool> m_isTaken;
};
