#include "map/PolylineParts.h"

#include "lum_sdk/LineClip.h"

void PolylineParts::clear()
{
    m_parts.clear();
    m_isOpen = false;
}

void PolylineParts::moveTo(const QPointF& vertex)
{
    m_last = vertex;
    m_isOpen = false;
}

void PolylineParts::lineTo(const QPointF& vertex)
{
    const auto seen = clippedLine(QLineF(m_last, vertex), m_area);
    const bool isWhole = seen && m_area.contains(vertex);
    if (seen && m_isOpen)
        m_parts.last().append(isWhole ? vertex : seen->p2());
    else if (seen)
        m_parts.append(QPolygonF(QVector<QPointF>{seen->p1(), seen->p2()}));
    m_isOpen = isWhole;
    m_last = vertex;
}
