#pragma once

#include <QColor>
#include <QPolygonF>

class IDictionary;
class QPointF;
class QRectF;

/// A line of an overlay that has a look of its own. It has a white edge, so that it shows on any
/// ground.
struct OverlayLine
{
    QPolygonF map; ///< map coordinates
    QColor color;
    int width = 1; ///< screen pixels
    Qt::PenStyle style = Qt::SolidLine;
    bool hasArrow = false; ///< at its end
};

/// A drawing over the map's picture, such as a highlight or the rectangle of the zoom tool. It
/// holds at most one point, one line, one set of vertices and one rectangle, and any number of
/// lines that have a look of their own. Changes show after `IMapWindow::refreshOverlay`.
class IOverlay
{
public:
    virtual ~IOverlay() = default;

    /// Removes all shapes, and sets properties, styles and colour back to their defaults.
    virtual void clear() = 0;
    /// Reads "point_radius", the radius of the point and of the vertices, screen pixels (default
    /// 4), and "vertex_shapes", the shapes of the first vertices, separated by blanks: "cross",
    /// "ring" or "disc" (the default). Crosses and rings have a white edge, so that they show on
    /// any ground.
    virtual void setProperties(const IDictionary& properties) = 0;
    /// The number of a `Qt::PenStyle`: 1 solid (the default), 2 dashed, 3 dotted.
    virtual void setLineStyle(int style) = 0;
    /// Line width in screen pixels (default 1).
    virtual void setLineWidth(int width) = 0;
    virtual void setColor(const QColor& color) = 0;

    // These take map coordinates: the shapes move with the map.
    virtual void setPoint(const QPointF& map) = 0;
    virtual void setLine(const QPolygonF& map) = 0;
    virtual void setVertices(const QPolygonF& map) = 0;
    /// Under all other shapes, over the lines that were added before.
    virtual void addLine(const OverlayLine& line) = 0;

    /// The rectangle that a tool draws, screen pixels, normalised or not.
    virtual void setRectangle(const QRectF& screen) = 0;
};
