#include "map/CircleStamp.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr int kPhases = 4;          // places of the centre within a device pixel, across and down
constexpr double kFarthest = 30000; // device pixels; beyond it an int could overflow

} // namespace

CircleStamp::CircleStamp(double radius, const QPen& pen, const QBrush& brush, double pixelRatio)
    : m_ratio(pixelRatio),
      m_side(2 * static_cast<int>(std::ceil((radius + pen.widthF() / 2) * pixelRatio)) + 4),
      m_images(m_side * kPhases, m_side * kPhases, QImage::Format_ARGB32_Premultiplied)
{
    m_images.fill(Qt::transparent);
    m_images.setDevicePixelRatio(pixelRatio);
    QPainter painter(&m_images);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(brush);
    const int half = m_side / 2;
    const auto middle = [&](int phase) {
        return (phase * m_side + half + (phase + 0.5) / kPhases) / m_ratio;
    };
    for (int row = 0; row < kPhases; ++row) {
        for (int column = 0; column < kPhases; ++column)
            painter.drawEllipse(QPointF(middle(column), middle(row)), radius, radius);
    }
}

void CircleStamp::draw(QPainter& painter, const QPointF& center) const
{
    const QPointF place = center * m_ratio;
    if (!(std::abs(place.x()) < kFarthest && std::abs(place.y()) < kFarthest))
        return;
    const double left = std::floor(place.x());
    const double top = std::floor(place.y());
    const int column = static_cast<int>((place.x() - left) * kPhases);
    const int row = static_cast<int>((place.y() - top) * kPhases);
    const int half = m_side / 2;
    painter.drawImage(QPointF(left - half, top - half) / m_ratio, m_images,
                      QRectF(column * m_side, row * m_side, m_side, m_side));
}
