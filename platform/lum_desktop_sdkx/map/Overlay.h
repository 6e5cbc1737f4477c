#pragma once

#include "lum_desktop_sdkx/IOverlay.h"

#include <QColor>
#include <QPolygonF>
#include <QRectF>

#include <optional>
#include <vector>

class QPainter;
class Transform;

/// A drawing over the map's picture. Setters prepare it, `refresh` shows what was set.
class Overlay final : public IOverlay
{
public:
    void clear() override;
    /// A radius of 0 or less means the default radius.
    void setProperties(const IDictionary& properties) override;
    /// A number that is no pen style means a solid line.
    void setLineStyle(int style) override;
    /// The width is kept between 1 and 32.
    void setLineWidth(int width) override;
    void setColor(const QColor& color) override;
    void setPoint(const QPointF& map) override;
    void setLine(const QPolygonF& map) override;
    void setVertices(const QPolygonF& map) override;
    /// The width is kept between 1 and 32.
    void addLine(const OverlayLine& line) override;
    void setRectangle(const QRectF& screen) override;

    /// Makes `draw` draw what was set until now.
    void refresh();
    /// Draws on the screen of `view`. Skips shapes that are not finite or cannot be seen.
    void draw(QPainter& painter, const Transform& view) const;

private:
    enum class Shape
    {
        Disc,
        Ring,
        Cross
    };
    struct Drawing
    {
        double pointRadius = 4;          ///< screen pixels
        std::vector<Shape> vertexShapes; ///< of the first vertices
        Qt::PenStyle lineStyle = Qt::SolidLine;
        int lineWidth = 1; ///< screen pixels
        QColor color = Qt::red;
        std::optional<QPointF> point;
        QPolygonF line;
        QPolygonF vertices;
        std::vector<OverlayLine> addedLines;
        std::optional<QRectF> rectangle; ///< screen pixels
    };

    void drawLine(QPainter& painter, const Transform& view, const QRectF& area) const;
    void drawRectangle(QPainter& painter, const QRectF& area) const;
    void drawPoints(QPainter& painter, const Transform& view, const QRectF& area) const;
    void drawShape(QPainter& painter, Shape shape, const QPointF& screen) const;

    Drawing m_next;  ///< as it was set
    Drawing m_shown; ///< as it is drawn
};
