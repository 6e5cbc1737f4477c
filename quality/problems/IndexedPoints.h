#pragma once

#include "model/PointLines.h"
#include "quality/problems/PointIndex.h"

#include <limits>
#include <utility>
#include <vector>

/// Points without a position are at the origin, all of them.
template <class Point>
[[nodiscard]] bool hasPosition(const Point& point)
{
    return point.north != 0 || point.east != 0;
}

/// A place that is no number when the point has no position: it is near nothing.
/// \param planeUnitM  metres a unit of the plane coordinates
template <class Point>
[[nodiscard]] PointPlace placeOf(const Point& point, double planeUnitM)
{
    if (!hasPosition(point))
        return {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
    return {point.east * planeUnitM, point.north * planeUnitM};
}

/// Points of a container that can be found by their places. Valid as long as pointers to them.
template <class Point>
class IndexedPoints
{
public:
    /// \param isWanted  `bool(const Point&)`
    template <class IsWanted>
    IndexedPoints(const PointLines<Point>& points, double planeUnitM, IsWanted isWanted)
        : IndexedPoints(chosen(points, isWanted), planeUnitM)
    {
    }

    [[nodiscard]] std::size_t size() const { return m_points.size(); }
    /// The numbers of the points are their order in the container.
    [[nodiscard]] const Point& operator[](std::size_t number) const { return *m_points[number]; }
    [[nodiscard]] const PointIndex& index() const { return m_index; }

private:
    using Pointers = std::vector<const Point*>;

    IndexedPoints(Pointers points, double planeUnitM)
        : m_points(std::move(points)), m_index(placesOf(m_points, planeUnitM))
    {
    }

    template <class IsWanted>
    static Pointers chosen(const PointLines<Point>& points, IsWanted isWanted)
    {
        Pointers chosen;
        for (const auto& [number, line] : points) {
            for (const Point& point : line) {
                fetchAhead(point);
                if (isWanted(point))
                    chosen.push_back(&point);
            }
        }
        return chosen;
    }
    static std::vector<PointPlace> placesOf(const Pointers& points, double planeUnitM)
    {
        std::vector<PointPlace> places;
        places.reserve(points.size());
        for (const Point* const point : points)
            places.push_back(placeOf(*point, planeUnitM));
        return places;
    }

    Pointers m_points;
    PointIndex m_index;
};
