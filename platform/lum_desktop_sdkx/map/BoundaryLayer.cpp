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

constexpr QRgb kColor = 0xFFD55E00; // vermilion: told from its neighbours by every kind of eye
constexpr double kDash = 6;         // pixels, and so on
constexpr double kGap = 4;
constexpr double kRoomForLabels = 300;
constexpr double kLabelDistance = 3;

/// Draws one edge. Only the part in sight, but with the dashes that the whole would have, so that
/// they stay at their place on the map when it is panned.
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

/// Writes a corner's coordinates outside the rectangle, above or below the corner, flush with it;
/// pushed back into the picture where that would cut them off.
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

/// Labels the corners, south-west first and on against the clock, while two fit side by side.
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
    m_properties.set("listed", "0"); // a command of its own shows and hides it
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
    // south-west first: a map rectangle's "top" is its smallest northing
    const QPointF ends[] = {extent.topLeft(), extent.topRight(), extent.bottomRight(),
                            extent.bottomLeft()};
    QPolygonF corners;
    for (const QPointF& end : ends) {
        const QPointF screen = target.transform.SurveyToScreen(end);
        corners.append({std::floor(screen.x()) + 0.5, std::floor(screen.y()) + 0.5}); // crisp
    }
    const QRectF screen(QPointF(0, 0), QSizeF(target.transform.size()));
    painter.setRenderHint(QPainter::Antialiasing);
    drawEdges(painter, corners, screen.adjusted(-1, -1, 1, 1));
    drawLabels(painter, corners, ends, screen);
}
