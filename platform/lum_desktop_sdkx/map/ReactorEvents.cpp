#include "lum_desktop_sdkx/map/ReactorEvents.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {

constexpr double kNotch = 120; // Qt's angle of one notch, in eighths of a degree

constexpr ButtonOperations kButtons[] = {
    {Qt::LeftButton, &IReactor::lButtonDown, &IReactor::lButtonUp},
    {Qt::RightButton, &IReactor::rButtonDown, &IReactor::rButtonUp},
    {Qt::MiddleButton, &IReactor::mButtonDown, &IReactor::mButtonUp},
};

} // namespace

MouseKeyEventParameters parametersOf(const QMouseEvent& event)
{
    MouseKeyEventParameters parameters;
    parameters.position = event.localPos();
    parameters.button = event.button();
    parameters.buttons = event.buttons();
    parameters.modifiers = event.modifiers();
    return parameters;
}

MouseKeyEventParameters parametersOf(const QWheelEvent& event)
{
    MouseKeyEventParameters parameters;
    parameters.position = event.position();
    parameters.buttons = event.buttons();
    parameters.modifiers = event.modifiers();
    parameters.wheelSteps = event.angleDelta().y() / kNotch;
    return parameters;
}

MouseKeyEventParameters parametersOf(const QKeyEvent& event, const QPointF& cursor)
{
    MouseKeyEventParameters parameters;
    parameters.position = cursor;
    parameters.modifiers = event.modifiers();
    parameters.key = event.key();
    return parameters;
}

const ButtonOperations* operationsOf(Qt::MouseButton button)
{
    for (const ButtonOperations& operations : kButtons) {
        if (operations.button == button)
            return &operations;
    }
    return nullptr;
}
