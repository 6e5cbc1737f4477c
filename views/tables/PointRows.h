#pragma once

#include "model/PointLines.h"
#include "model/PointName.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <vector>

/// Points of a container in its order: all of them, those of one line, or none. It refers to them,
/// and knows when the container has changed meanwhile.
///
/// A number made of line and point number tells a point from the others also when it is gone: so a
/// view finds its points again in what was read later.
template <class Point>
class PointRows
{
public:
    using Points = PointLines<Point>;
    using Key = std::uint64_t;

    void clear()
    {
        m_points.clear();
        m_keys.clear();
        m_revision = 0;
    }
    void readAll(const Points& points)
    {
        start(points, points.pointCount());
        for (const auto& [number, line] : points)
            add(number, line);
    }
    /// A line that is not there has no points.
    void readLine(const Points& points, std::string_view lineNumber)
    {
        const auto* const line = points.findLine(lineNumber);
        start(points, line == nullptr ? 0 : line->size());
        if (line != nullptr)
            add(lineNumber, *line);
    }

    /// Whether the points may be looked at.
    /// \param points null when there are none any more
    [[nodiscard]] bool areOf(const Points* points) const
    {
        return points != nullptr && points->revision() == m_revision;
    }

    [[nodiscard]] std::size_t size() const { return m_points.size(); }
    [[nodiscard]] const Point& operator[](std::uint32_t place) const { return *m_points[place]; }
    [[nodiscard]] std::optional<std::uint32_t> find(const PointName& name) const
    {
        const auto found =
            std::partition_point(m_points.begin(), m_points.end(), [&](const Point* point) {
                return std::tie(point->lineNumber, point->pointNumber) <
                       std::tie(name.line, name.point);
            });
        if (found == m_points.end() || (*found)->lineNumber != name.line ||
            (*found)->pointNumber != name.point)
            return std::nullopt;
        return static_cast<std::uint32_t>(found - m_points.begin());
    }

    /// May be asked of points that are gone.
    [[nodiscard]] Key keyAt(std::uint32_t place) const { return m_keys[place]; }
    /// The places of keys; those of points that are not here are left out.
    [[nodiscard]] std::unordered_map<Key, std::uint32_t>
    placesOf(const std::vector<Key>& keys) const
    {
        constexpr auto kNowhere = ~std::uint32_t(0);
        std::unordered_map<Key, std::uint32_t> places;
        for (const Key key : keys)
            places.emplace(key, kNowhere);
        if (places.empty())
            return places;
        for (std::uint32_t place = 0; place < m_keys.size(); ++place) {
            const auto found = places.find(m_keys[place]);
            if (found != places.end())
                found->second = place;
        }
        std::erase_if(places, [](const auto& entry) { return entry.second == kNowhere; });
        return places;
    }

private:
    void start(const Points& points, std::size_t count)
    {
        clear();
        m_revision = points.revision();
        m_points.reserve(count);
        m_keys.reserve(count);
    }
    void add(std::string_view lineNumber, const PointLine<Point>& line)
    {
        constexpr Key kSpread = 0x9E3779B97F4A7C15; // 2^64 / the golden ratio
        const Key lineKey = std::hash<std::string_view>()(lineNumber) * kSpread;
        for (const Point& point : line) {
            m_points.push_back(&point);
            m_keys.push_back(lineKey ^ std::hash<std::string_view>()(point.pointNumber));
        }
    }

    std::vector<const Point*> m_points;
    std::vector<Key> m_keys;
    std::uint64_t m_revision = 0;
};
