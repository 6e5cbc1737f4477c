#pragma once

#include <QPolygonF>
#include <QVector>

/// Cuts a polyline down to the parts inside an area, so that the paint engine never gets a vertex
/// millions of pixels away.
class PolylineParts
{
public:
    explicit PolylineParts(const QRectF& area) : m_area(area) {}

    /// Forgets all parts.
    void clear();
    /// Draws a line from the last vertex to this one.
    void lineTo(const QPointF& vertex);
    /// Makes this the last vertex, without a line to it.
    void moveTo(const QPointF& vertex);

    /// The parts in their order, each of two vertices or more.
    [[nodiscard]] const QVector<QPolygonF>& parts() const { return m_parts; }

private:
    QRectF m_area;
    QVector<QPolygonF> m_parts;
    QPointF m_last;
    bool m_isOpen = false; ///< the last part ends at `m_last`
};
