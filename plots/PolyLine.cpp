#include "plots/PolyLine.h"

#include <QPainter>
#include <qwt_clipper.h>
#include <qwt_scale_map.h>

void PolyLine::draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                    const QRectF& canvas) const
{
    QPolygonF onScreen;
    onScreen.reserve(m_points.size());
    for (const QPointF& point : m_points)
        onScreen << QwtScaleMap::transform(xMap, yMap, point);
    const double room = 2 * m_pen.widthF() + 1;
    painter->setPen(m_pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawPolyline(
        QwtClipper::clipPolygonF(canvas.adjusted(-room, -room, room, room), onScreen));
}
