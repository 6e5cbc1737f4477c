#pragma once

#include "lum_desktop_sdkx/IOverlay.h"

#include <QColor>
#include <QPolygonF>
#include <QRectF>

#include <optional>

class QPainter;
class Transform;

/// A scratch drawing over the map's picture.
class Overlay final : public IOverlay
{
public:
    void clear() override;
    /// A radius that is not above 0 counts as the default one.
    void setProperties(const IDictionary& properties) override;
    /// What is no pen style counts as solid.
    void setLineStyle(int style) override;
    /// Kept between 1 and 32.
    void setLineWidth(int width) override;
    void setColor(const QColor& color) override;
    void setPoint(const QPointF& map) override;
    void setLine(const QPolygonF& map) override;
    void setVertices(const QPolygonF& map) override;
    void setRectangle(const QRectF& screen) override;

    /// From now on `draw` draws what has been set so far.
    void refresh();
    /// Draws on the screen of `view`; shapes that are not finite or out of sight are passed over.
    void draw(QPainter& painter, const Transform& view) const;

private:
    struct Drawing
    {
        double pointRadius = 4; ///< screen pixels
        Qt::PenStyle lineStyle = Qt::SolidLine;
        int lineWidth = 1; ///< screen pixels
        QColor color = Qt::red;
        std::optional<QPointF> point;
        QPolygonF line;
        QPolygonF vertices;
        std::optional<QRectF> rectangle; ///< screen pixels
    };

    void drawLine(QPainter& painter, const Transform& view, const QRectF& area) const;
    void drawRectangle(QPainter& painter, const QRectF& area) const;
    void drawPoints(QPainter& painter, const Transform& view, const QRectF& area) const;

    Drawing m_next;
    Drawing m_shown;
};
