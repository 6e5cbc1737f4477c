#include "map/ui/ReactorMoveTrans.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/MouseKeyEventParameters.h"
#include "map/ui/MouseMode.h"

#include <QCursor>

namespace {

/// The point without its fractions. One step ends where the next begins, so that no pixel is lost.
QPoint truncated(const QPointF& point)
{
    return {static_cast<int>(point.x()), static_cast<int>(point.y())};
}

} // namespace

ReactorMoveTrans::ReactorMoveTrans(const char* /*config*/, IMapWindow* map) : ReactorBase(map) {}

int ReactorMoveTrans::lButtonDown(const MouseKeyEventParameters& event)
{
    m_isDragging = true;
    m_last = event.position;
    m_pressed = event.position.toPoint();
    map().setMapCursor(Qt::ClosedHandCursor);
    return 0;
}

int ReactorMoveTrans::mouseMove(const MouseKeyEventParameters& event)
{
    ReactorBase::mouseMove(event);
    if (!m_isDragging)
        return 1;
    const QPoint from = truncated(m_last);
    const QPoint to = truncated(event.position);
    map().pan(from.x(), from.y(), to.x(), to.y());
    m_last = event.position;
    return 0;
}

int ReactorMoveTrans::lButtonUp(const MouseKeyEventParameters& event)
{
    m_isDragging = false;
    map().setMapCursor(Qt::OpenHandCursor);
    if (event.position.toPoint() != m_pressed)
        map().redraw();
    return 0;
}

int ReactorMoveTrans::rButtonUp(const MouseKeyEventParameters& event)
{
    MouseMode::end(map(), MouseMode::kPan);
    return ReactorBase::rButtonUp(event);
}
