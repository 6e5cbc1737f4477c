#pragma once

#include <QtTest>
#include <QtWidgets>

/// The menu that is open; null for none.
inline QMenu* openMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// Opens the menu of a widget by a right click on a place of it.
inline QMenu* openMenuAt(QWidget& widget, const QPoint& place)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    return openMenu();
}

/// Chooses an entry of a menu by the Enter key.
inline void chooseFrom(QMenu* menu, const QString& entry)
{
    QVERIFY(menu != nullptr);
    for (QAction* const action : menu->actions()) {
        if (action->text() != entry)
            continue;
        menu->popup({});
        menu->setActiveAction(action);
        QEventLoop loop; // as the program has; without one, a dialog's would end the menu
        QTimer::singleShot(0, &loop, [&] {
            QTest::keyEvent(QTest::Press, menu, Qt::Key_Return);
            loop.quit();
        });
        loop.exec();
        return;
    }
    QFAIL(qPrintable(QStringLiteral("no entry ") + entry));
}
