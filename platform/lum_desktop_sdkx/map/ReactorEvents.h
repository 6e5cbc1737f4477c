#pragma once

#include "lum_desktop_sdkx/map/ReactorStack.h"
#include "lum_desktop_sdkx/MouseKeyEventParameters.h"

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

// Turns Qt's events into what reactors get.

[[nodiscard]] MouseKeyEventParameters parametersOf(const QMouseEvent& event);
[[nodiscard]] MouseKeyEventParameters parametersOf(const QWheelEvent& event);
/// \param cursor screen pixels of the map widget
[[nodiscard]] MouseKeyEventParameters parametersOf(const QKeyEvent& event, const QPointF& cursor);

struct ButtonOperations
{
    Qt::MouseButton button;
    ReactorStack::Operation down;
    ReactorStack::Operation up;
};

/// The operations for a button; null for a button that reactors do not know.
[[nodiscard]] const ButtonOperations* operationsOf(Qt::MouseButton button);
