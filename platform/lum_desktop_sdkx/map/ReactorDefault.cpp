#include "lum_desktop_sdkx/map/ReactorDefault.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/MouseKeyEventParameters.h"
#include "lum_sdk/Transform.h"

#include <QCursor>
#include <QGuiApplication>

#include <cmath>

namespace {
constexpr double kFactorOfNotch = 1.25;
} // namespace

ReactorDefault::ReactorDefault(const char* /*config*/, IMapWindow* map) : ReactorBase(map) {}

ReactorDefault::~ReactorDefault()
{
    endDrag();
}

int ReactorDefault::rButtonUp(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}

int ReactorDefault::mButtonDown(const MouseKeyEventParameters& event)
{
    if (!m_isDragging) // an override, so that the tool's cursor comes back afterwards
        QGuiApplication::setOverrideCursor(QCursor(Qt::ClosedHandCursor));
    m_isDragging = true;
    m_last = event.position.toPoint();
    return 1;
}

int ReactorDefault::mButtonUp(const MouseKeyEventParameters& /*event*/)
{
    if (!m_isDragging)
        return 0;
    endDrag();
    return 1;
}

int ReactorDefault::mouseMove(const MouseKeyEventParameters& event)
{
    if (!m_isDragging)
        return 0;
    if (!event.buttons.testFlag(Qt::MiddleButton)) { // it was released outside, without an event
        endDrag();
        return 0;
    }
    const QPoint now = event.position.toPoint();
    map().pan(m_last.x(), m_last.y(), now.x(), now.y());
    m_last = now;
    return 1;
}

int ReactorDefault::mouseWheel(const MouseKeyEventParameters& event)
{
    if (event.wheelSteps == 0) // a wheel that turns sideways
        return 0;
    map().zoomAbout(event.position.x(), event.position.y(),
                    std::pow(kFactorOfNotch, event.wheelSteps));
    return 1;
}

int ReactorDefault::keyPress(const MouseKeyEventParameters& event)
{
    const bool isFar = event.modifiers.testFlag(Qt::ShiftModifier);
    switch (event.key) {
    case Qt::Key_Left:
        panView(-1, 0, isFar);
        return 1;
    case Qt::Key_Right:
        panView(1, 0, isFar);
        return 1;
    case Qt::Key_Up:
        panView(0, -1, isFar);
        return 1;
    case Qt::Key_Down:
        panView(0, 1, isFar);
        return 1;
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key without Shift on many keyboards
        map().zoomIn();
        return 1;
    case Qt::Key_Minus:
        map().zoomOut();
        return 1;
    case Qt::Key_Home:
        map().zoomAll();
        return 1;
    default:
        return 0;
    }
}

void ReactorDefault::endDrag()
{
    if (m_isDragging)
        QGuiApplication::restoreOverrideCursor();
    m_isDragging = false;
}

void ReactorDefault::panView(int right, int down, bool isFar)
{
    const QSize size = map().transform().size();
    const int divisor = isFar ? 2 : 10;
    map().pan(right * size.width() / divisor, down * size.height() / divisor, 0, 0);
}
