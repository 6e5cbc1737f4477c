#include "map/ui/ReactorZoomRectTrans.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IOverlay.h"
#include "lum_desktop_sdkx/MouseKeyEventParameters.h"
#include "lum_sdk/Transform.h"
#include "map/ui/MouseMode.h"

#include <QColor>
#include <QRectF>

namespace {

/// Not normalised.
QRectF rectangle(const QPoint& topLeft, const QPoint& bottomRight)
{
    return {QPointF(topLeft), QPointF(bottomRight)};
}

} // namespace

ReactorZoomRectTrans::ReactorZoomRectTrans(const char* /*config*/, IMapWindow* map)
    : ReactorBase(map)
{
}

int ReactorZoomRectTrans::lButtonDown(const MouseKeyEventParameters& event)
{
    m_pressed = event.position.toPoint();
    m_isDragging = true;
    return 0;
}

int ReactorZoomRectTrans::mouseMove(const MouseKeyEventParameters& event)
{
    if (!m_isDragging)
        return 1;
    m_current = event.position.toPoint();
    IOverlay& overlay = map().overlay(0);
    overlay.clear();
    overlay.setLineStyle(Qt::DotLine);
    overlay.setLineWidth(2);
    overlay.setColor(Qt::red);
    overlay.setRectangle(rectangle(m_pressed, m_current));
    map().refreshOverlay();
    return 0;
}

int ReactorZoomRectTrans::lButtonUp(const MouseKeyEventParameters& event)
{
    if (!m_isDragging)
        return 0;
    m_isDragging = false;
    const QRectF area =
        map().transform().ScreenToSurvey(rectangle(m_pressed, event.position.toPoint()));
    map().zoomRect(area.left(), area.top(), area.right(), area.bottom());
    clearRectangle();
    map().redraw();
    return 0;
}

int ReactorZoomRectTrans::rButtonUp(const MouseKeyEventParameters& event)
{
    if (m_isDragging)
        clearRectangle();
    MouseMode::end(map(), MouseMode::kZoomRect);
    return ReactorBase::rButtonUp(event);
}

void ReactorZoomRectTrans::clearRectangle()
{
    map().overlay(0).clear();
    map().refreshOverlay();
}
