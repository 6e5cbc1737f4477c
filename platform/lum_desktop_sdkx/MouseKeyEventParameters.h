#pragma once

#include <QPointF>
#include <Qt>

/// A mouse or key event over the map.
struct MouseKeyEventParameters
{
    QPointF position; ///< of the cursor, screen pixels of the map widget
    Qt::MouseButton button = Qt::NoButton;
    Qt::MouseButtons buttons = Qt::NoButton;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    double wheelSteps = 0; ///< notches of the wheel; positive when it turns away from the user
    int key = 0;           ///< Qt::Key of a key event
};
