#include "lum_desktop_sdkx/map/MapPicture.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr double kMaxStretch = 64;

QPointF toDevicePixel(const QPointF& screen, double ratio)
{
    return {std::round(screen.x() * ratio) / ratio, std::round(screen.y() * ratio) / ratio};
}

/// Fills the parts of `area` outside of `covered`. It may also fill pixels under the edges of
/// `covered`, and must be called before that is drawn.
void fillAround(QPainter& painter, const QRectF& area, const QRectF& covered, const QColor& color)
{
    const QRectF bands[] = {
        {area.topLeft(), QPointF(area.right(), covered.top())},
        {QPointF(area.left(), covered.bottom()), area.bottomRight()},
        {area.topLeft(), QPointF(covered.left(), area.bottom())},
        {QPointF(covered.right(), area.top()), area.bottomRight()},
    };
    for (const QRectF& band : bands) {
        if (band.width() > 0 && band.height() > 0)
            painter.fillRect(band.toAlignedRect(), color);
    }
}

} // namespace

void MapPicture::set(const QImage& image, const Transform& view)
{
    m_image = image;
    m_view = view;
}

void MapPicture::draw(QPainter& painter, const Transform& live, const QColor& background) const
{
    // At a scale that is no whole number the window reaches into one pixel more.
    const QRectF area(QPointF(0, 0), QSizeF(live.size()) + QSizeF(1, 1));
    const QRectF target = place(live);
    if (target.isNull()) {
        painter.fillRect(area, background);
        return;
    }
    fillAround(painter, area, target, background);
    if (target.size() == QSizeF(m_view.size()))
        painter.drawImage(target.topLeft(), m_image);
    else
        painter.drawImage(target, m_image);
}

QRectF MapPicture::place(const Transform& live) const
{
    if (m_image.isNull())
        return {};
    double stretch = m_view.GetScale() / live.GetScale();
    if (std::abs(stretch - 1) < 1e-9)
        stretch = 1;
    if (stretch > kMaxStretch || stretch < 1 / kMaxStretch)
        return {};
    const QPointF corner = live.SurveyToScreen(m_view.ScreenToSurvey(QPointF(0, 0)));
    const QRectF target(toDevicePixel(corner, m_image.devicePixelRatio()),
                        QSizeF(m_view.size()) * stretch);
    const QRectF area(QPointF(0, 0), QSizeF(live.size()));
    return target.intersects(area) ? target : QRectF();
}
