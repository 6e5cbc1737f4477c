#pragma once

#include <QRectF>

#include <limits>

/// The smallest axis-parallel rectangle that holds all points added so far; empty without points.
/// The edges belong to it, so that a single point has bounds.
struct Bounds
{
    double minX = std::numeric_limits<double>::infinity();
    double minY = std::numeric_limits<double>::infinity();
    double maxX = -std::numeric_limits<double>::infinity();
    double maxY = -std::numeric_limits<double>::infinity();

    [[nodiscard]] bool isEmpty() const { return !(minX <= maxX); }

    void add(double x, double y)
    {
        minX = x < minX ? x : minX;
        minY = y < minY ? y : minY;
        maxX = x > maxX ? x : maxX;
        maxY = y > maxY ? y : maxY;
    }
    void add(const QPointF& point) { add(point.x(), point.y()); }
    void add(const Bounds& other)
    {
        add(other.minX, other.minY);
        add(other.maxX, other.maxY);
    }

    /// \param area normalised
    [[nodiscard]] bool touches(const QRectF& area) const
    {
        return minX <= area.right() && area.left() <= maxX && minY <= area.bottom() &&
               area.top() <= maxY;
    }
};
