#include "lum_sdk/Transform.h"

#include <algorithm>
#include <cmath>

namespace lum {

bool isFinite(const QRectF& area)
{
    return std::isfinite(area.left()) && std::isfinite(area.top()) && std::isfinite(area.right()) &&
           std::isfinite(area.bottom());
}

} // namespace lum

QPointF Transform::SurveyToScreen(const QPointF& map) const
{
    return SurveyToScreen(map.x(), map.y());
}

QPointF Transform::SurveyToScreen(double x, double y) const
{
    return {(x - m_center.x()) / m_scale + m_size.width() / 2.0,
            (m_center.y() - y) / m_scale + m_size.height() / 2.0};
}

QPointF Transform::ScreenToSurvey(const QPointF& screen) const
{
    return {m_center.x() + (screen.x() - m_size.width() / 2.0) * m_scale,
            m_center.y() - (screen.y() - m_size.height() / 2.0) * m_scale};
}

QRectF Transform::ScreenToSurvey(const QRectF& screen) const
{
    return {ScreenToSurvey(screen.topLeft()), ScreenToSurvey(screen.bottomRight())};
}

QRectF Transform::visibleExtent() const
{
    return ScreenToSurvey(QRectF(QPointF(0, 0), QSizeF(m_size))).normalized();
}

void Transform::setSize(const QSize& size)
{
    m_size = size.expandedTo(QSize(1, 1));
}

void Transform::setView(const QPointF& center, double scale)
{
    if (!std::isfinite(center.x()) || !std::isfinite(center.y()) || !std::isfinite(scale))
        return;
    m_center = center;
    m_scale = std::clamp(scale, kMinScale, kMaxScale);
}

void Transform::panBy(const QPointF& pixels)
{
    setView({m_center.x() - pixels.x() * m_scale, m_center.y() + pixels.y() * m_scale}, m_scale);
}

void Transform::zoomAbout(const QPointF& screen, double factor)
{
    const QPointF fixed = ScreenToSurvey(screen);
    if (!std::isfinite(factor) || factor <= 0 || !std::isfinite(fixed.x()) ||
        !std::isfinite(fixed.y()))
        return;
    setView(m_center, m_scale / factor);
    const QPointF moved = ScreenToSurvey(screen);
    setView(m_center + (fixed - moved), m_scale);
}

void Transform::fit(const QRectF& extent, double margin)
{
    const QRectF area = extent.normalized();
    const double share = 1 - 2 * std::clamp(margin, 0.0, 0.45);
    const double scale = std::max(area.width() / (m_size.width() * share),
                                  area.height() / (m_size.height() * share));
    setView(area.center(), scale > 0 ? scale : m_scale);
}
