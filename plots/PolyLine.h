#pragma once

#include <QPen>
#include <QPolygonF>
#include <qwt_plot_item.h>

/// A line through some places of a plot. (The curve of Qwt 6.1 has a header that is no C++20.)
class PolyLine : public QwtPlotItem
{
public:
    PolyLine(QPolygonF points, QPen pen) : m_points(std::move(points)), m_pen(std::move(pen)) {}

    void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
              const QRectF& canvas) const override;

private:
    QPolygonF m_points;
    QPen m_pen;
};
