#pragma once

#include <QPolygonF>
#include <QVector>

/// The parts of a polyline inside an area, so that the paint engine never sees a vertex millions of
/// pixels away.
class PolylineParts
{
public:
    explicit PolylineParts(const QRectF& area) : m_area(area) {}

    /// Begins anew.
    void clear();
    /// Goes on from where it stands to `vertex`.
    void lineTo(const QPointF& vertex);
    /// Goes to `vertex` without a line.
    void moveTo(const QPointF& vertex);

    /// In their order; each has two vertices or more.
    [[nodiscard]] const QVector<QPolygonF>& parts() const { return m_parts; }

private:
    QRectF m_area;
    QVector<QPolygonF> m_parts;
    QPointF m_last;
    bool m_isOpen = false; ///< the last part ends at `m_last`
};
