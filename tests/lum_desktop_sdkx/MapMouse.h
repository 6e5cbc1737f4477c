#pragma once

#include "lum_sdk/Transform.h"

#include <QtTest>

// What the tests of the map share: the mouse over it, and what it shows.

/// Centre and scale of a view: "400, 300 at 1.5".
inline QString viewOf(const Transform& view)
{
    const QPointF center = view.center();
    return QString::fromLatin1("%1, %2 at %3").arg(center.x()).arg(center.y()).arg(view.GetScale());
}

/// Qt Test's own move comes later and carries no buttons.
inline void moveMouse(QWidget& map, const QPoint& to, Qt::MouseButtons buttons = Qt::NoButton)
{
    QMouseEvent event(QEvent::MouseMove, to, map.mapToGlobal(to), Qt::NoButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(&map, &event);
}

inline void dragMouse(QWidget& map, Qt::MouseButton button, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(&map, button, {}, from);
    moveMouse(map, (from + to) / 2, button);
    moveMouse(map, to, button);
    QTest::mouseRelease(&map, button, {}, to);
}
