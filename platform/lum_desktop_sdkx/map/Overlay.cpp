#include "lum_desktop_sdkx/map/Overlay.h"

#include "basalt_utilities/IDictionary.h"
#include "lum_sdk/LineClip.h"
#include "lum_sdk/Text.h"
#include "lum_sdk/Transform.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMaxRadius = 200;
constexpr int kMaxWidth = 32;
constexpr int kBandAlpha = 28;      // lets the map show through the rectangle
constexpr double kMarkWidth = 2;    // of a cross or ring, screen pixels
constexpr double kMarkEdge = 1;     // its white edge, screen pixels
constexpr double kArrowLength = 14; // screen pixels
constexpr double kArrowHalf = 5;    // half of its width
constexpr double kArmFactor = 0.8;  // of the radius
constexpr double kRingFactor = 1.6; // a cross at the same place fits into the ring

/// The pieces of a line that can be seen.
QVector<QLineF> seenPieces(const QPolygonF& map, const Transform& view, const QRectF& area)
{
    QVector<QLineF> pieces;
    for (int i = 1; i < map.size(); ++i) {
        const QLineF piece(view.SurveyToScreen(map[i - 1]), view.SurveyToScreen(map[i]));
        if (const auto seen = clippedLine(piece, area))
            pieces.push_back(*seen);
    }
    return pieces;
}

/// The head of an arrow at the end of a line; nothing where it has no direction or is not seen.
QPolygonF arrowHead(const QPolygonF& map, const Transform& view, const QRectF& area)
{
    if (map.size() < 2)
        return {};
    const QPointF tip = view.SurveyToScreen(map.last());
    const QPointF way = tip - view.SurveyToScreen(map[map.size() - 2]);
    const double length = std::hypot(way.x(), way.y());
    if (!std::isfinite(length) || length < 1 || !area.contains(tip))
        return {};
    const QPointF along = way / length;
    const QPointF aside(-along.y() * kArrowHalf, along.x() * kArrowHalf);
    const QPointF back = tip - along * kArrowLength;
    return QPolygonF(QVector<QPointF>{tip, back + aside, back - aside});
}

void drawAddedLine(QPainter& painter, const OverlayLine& line, const Transform& view,
                   const QRectF& area)
{
    const QVector<QLineF> pieces = seenPieces(line.map, view, area);
    const QPolygonF head = line.hasArrow ? arrowHead(line.map, view, area) : QPolygonF();
    const QColor edge = Qt::white;
    painter.setBrush(line.color);
    painter.setPen(QPen(edge, line.width + 2 * kMarkEdge));
    painter.drawLines(pieces);
    painter.setPen(QPen(edge, 2 * kMarkEdge));
    painter.drawPolygon(head);
    painter.setPen(QPen(line.color, line.width, line.style));
    painter.drawLines(pieces);
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(head);
    painter.setBrush(Qt::NoBrush);
}

} // namespace

void Overlay::clear()
{
    m_next = Drawing();
}

void Overlay::setProperties(const IDictionary& properties)
{
    const double radius = properties.number("point_radius", Drawing().pointRadius);
    m_next.pointRadius = radius > 0 ? std::min(radius, kMaxRadius) : Drawing().pointRadius;
    const QString shapes = lum::toQString(properties.text("vertex_shapes"));
    m_next.vertexShapes.clear();
    for (const QString& name : shapes.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        m_next.vertexShapes.push_back(name == QLatin1String("cross")  ? Shape::Cross
                                      : name == QLatin1String("ring") ? Shape::Ring
                                                                      : Shape::Disc);
}

void Overlay::setLineStyle(int style)
{
    const bool isKnown = style >= Qt::NoPen && style <= Qt::DashDotDotLine;
    m_next.lineStyle = isKnown ? static_cast<Qt::PenStyle>(style) : Qt::SolidLine;
}

void Overlay::setLineWidth(int width)
{
    m_next.lineWidth = std::clamp(width, 1, kMaxWidth);
}

void Overlay::setColor(const QColor& color)
{
    m_next.color = color;
}

void Overlay::setPoint(const QPointF& map)
{
    m_next.point = map;
}

void Overlay::setLine(const QPolygonF& map)
{
    m_next.line = map;
}

void Overlay::setVertices(const QPolygonF& map)
{
    m_next.vertices = map;
}

void Overlay::addLine(const OverlayLine& line)
{
    m_next.addedLines.push_back(line);
    m_next.addedLines.back().width = std::clamp(line.width, 1, kMaxWidth);
}

void Overlay::setRectangle(const QRectF& screen)
{
    m_next.rectangle = screen;
}

void Overlay::refresh()
{
    m_shown = m_next;
}

void Overlay::draw(QPainter& painter, const Transform& view) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double reach = kMaxRadius; // farther outside, a shape cannot be seen
    const QRectF area =
        QRectF(QPointF(0, 0), QSizeF(view.size())).adjusted(-reach, -reach, reach, reach);
    for (const OverlayLine& line : m_shown.addedLines)
        drawAddedLine(painter, line, view, area);
    painter.setPen(QPen(m_shown.color, m_shown.lineWidth, m_shown.lineStyle));
    drawLine(painter, view, area);
    drawRectangle(painter, area);
    drawPoints(painter, view, area);
    painter.restore();
}

void Overlay::drawLine(QPainter& painter, const Transform& view, const QRectF& area) const
{
    for (const QLineF& piece : seenPieces(m_shown.line, view, area))
        painter.drawLine(piece);
}

void Overlay::drawRectangle(QPainter& painter, const QRectF& area) const
{
    if (!m_shown.rectangle)
        return;
    QColor inside = m_shown.color;
    inside.setAlpha(kBandAlpha);
    painter.setBrush(inside);
    // std::max and std::min return a first argument that is no number. The comparison below then
    // fails.
    const QRectF band = m_shown.rectangle->normalized();
    const QPointF topLeft(std::max(band.left(), area.left()), std::max(band.top(), area.top()));
    const QPointF bottomRight(std::min(band.right(), area.right()),
                              std::min(band.bottom(), area.bottom()));
    if (topLeft.x() <= bottomRight.x() && topLeft.y() <= bottomRight.y())
        painter.drawRect(QRectF(topLeft, bottomRight));
}

void Overlay::drawPoints(QPainter& painter, const Transform& view, const QRectF& area) const
{
    const auto drawPoint = [&](const QPointF& map, Shape shape) {
        const QPointF screen = view.SurveyToScreen(map);
        // `contains` is true for a place that is no number
        if (std::isfinite(screen.x()) && std::isfinite(screen.y()) && area.contains(screen))
            drawShape(painter, shape, screen);
    };
    const auto& shapes = m_shown.vertexShapes;
    for (int i = m_shown.vertices.size() - 1; i >= 0; --i) { // the first one lies on top
        const auto index = static_cast<std::size_t>(i);
        drawPoint(m_shown.vertices[i], index < shapes.size() ? shapes[index] : Shape::Disc);
    }
    if (m_shown.point)
        drawPoint(*m_shown.point, Shape::Disc);
}

void Overlay::drawShape(QPainter& painter, Shape shape, const QPointF& screen) const
{
    const double radius = m_shown.pointRadius;
    if (shape == Shape::Disc) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_shown.color);
        painter.drawEllipse(screen, radius, radius);
        return;
    }
    painter.setBrush(Qt::NoBrush);
    const double arm = radius * kArmFactor;
    const QPointF rise(arm, -arm);
    const QPointF fall(arm, arm);
    for (const QPen& pen :
         {QPen(Qt::white, kMarkWidth + 2 * kMarkEdge, Qt::SolidLine, Qt::RoundCap),
          QPen(m_shown.color, kMarkWidth, Qt::SolidLine, Qt::RoundCap)}) {
        painter.setPen(pen);
        if (shape == Shape::Ring)
            painter.drawEllipse(screen, radius * kRingFactor, radius * kRingFactor);
        else
            painter.drawLines(
                {QLineF(screen - rise, screen + rise), QLineF(screen - fall, screen + fall)});
    }
}
