#include "lum_desktop_sdkx/map/BoundaryLayer.h"

#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"
#include "lum_sdk/files/SystemKeys.h"
#include "lum_sdk/LineClip.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace {

constexpr QRgb kColor = 0xFFD55E00; // vermilion, which colour-blind people can tell from the others

// screen pixels
constexpr double kDash = 6;
constexpr double kGap = 4;
constexpr double kRoomForLabels = 300;
constexpr double kLabelDistance = 3;

/// Draws the part of an edge that can be seen. Its dashes stand where those of the whole edge
/// would, so that they move with the map.
void drawEdge(QPainter& painter, QPen pen, const QLineF& edge, const QRectF& area)
{
    const auto seen = clippedLine(edge, area);
    if (!seen)
        return;
    const double skipped = std::hypot(seen->x1() - edge.x1(), seen->y1() - edge.y1());
    pen.setDashOffset(std::fmod(skipped, kDash + kGap));
    painter.setPen(pen);
    painter.drawLine(*seen);
}

void drawEdges(QPainter& painter, const QPolygonF& corners, const QRectF& area)
{
    QPen pen{QColor(kColor)};
    pen.setDashPattern({kDash, kGap});
    for (int i = 0; i < corners.size(); ++i)
        drawEdge(painter, pen, QLineF(corners[i], corners[(i + 1) % corners.size()]), area);
}

QString cornerText(const QPointF& map)
{
    return QString::fromStdString("N " + basalt::formatFixed(map.y(), 2) + "  E " +
                                  basalt::formatFixed(map.x(), 2));
}

/// Writes the coordinates of a corner above or below it, outside the rectangle and aligned with its
/// side. A label that would be cut off is moved into the picture.
void drawLabel(QPainter& painter, const QPointF& corner, const QString& text, bool isLeft,
               bool isTop, const QRectF& screen)
{
    if (!screen.contains(corner))
        return;
    const QSizeF size = painter.fontMetrics().size(Qt::TextSingleLine, text);
    const double left = isLeft ? corner.x() : corner.x() - size.width();
    const double top =
        isTop ? corner.y() - kLabelDistance - size.height() : corner.y() + kLabelDistance;
    const QPointF place(std::clamp(left, 0.0, std::max(0.0, screen.right() - size.width())),
                        std::clamp(top, 0.0, std::max(0.0, screen.bottom() - size.height())));
    painter.drawText(QRectF(place, size), Qt::AlignCenter | Qt::TextSingleLine, text);
}

/// Labels the corners when two labels fit side by side. The corners start in the south-west and go
/// counter-clockwise.
void drawLabels(QPainter& painter, const QPolygonF& corners, const QPointF (&map)[4],
                const QRectF& screen)
{
    const double labelWidth = painter.fontMetrics().horizontalAdvance(cornerText(map[0]));
    if (corners[1].x() - corners[0].x() < std::max(kRoomForLabels, 2.2 * labelWidth))
        return;
    painter.setPen(QColor(kColor));
    for (int i = 0; i < 4; ++i)
        drawLabel(painter, corners[i], cornerText(map[i]), i == 0 || i == 3, i >= 2, screen);
}

} // namespace

BoundaryLayer::BoundaryLayer(const char* config, IDesktopHost* /*host*/)
{
    m_properties.set("listed", "0"); // the list of layers leaves it out: a command shows it
    csa_to_dictionary(m_properties, config != nullptr ? config : "");
}

std::string BoundaryLayer::GetName() const
{
    return std::string(m_properties.text("layer_name", "BoundaryLayer"));
}

void BoundaryLayer::SetTransform(const Transform* /*transform*/) {}

bool BoundaryLayer::IsVisible() const
{
    return m_properties.integer("visible", 1) != 0;
}

void BoundaryLayer::Paint(const PaintTarget& target, const QRectF& /*view*/, QPainter& painter)
{
    if (target.status.integer(status::kDrawBoundaryRect) != 1 || target.mapExtent.isNull())
        return;
    const QRectF extent = target.mapExtent.normalized();
    // from the south-west on: the top of a map rectangle is its smallest northing
    const QPointF ends[] = {extent.topLeft(), extent.topRight(), extent.bottomRight(),
                            extent.bottomLeft()};
    QPolygonF corners;
    for (const QPointF& end : ends) {
        const QPointF screen = target.transform.SurveyToScreen(end);
        // In the middle of a pixel, so that the lines are sharp.
        corners.append({std::floor(screen.x()) + 0.5, std::floor(screen.y()) + 0.5});
    }
    const QRectF screen(QPointF(0, 0), QSizeF(target.transform.size()));
    painter.setRenderHint(QPainter::Antialiasing);
    drawEdges(painter, corners, screen.adjusted(-1, -1, 1, 1));
    drawLabels(painter, corners, ends, screen);
}
