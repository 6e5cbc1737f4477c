#include "lum_desktop_sdkx/frame/DockStyle.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QStyle>
#include <qtadvanceddocking/DockAreaWidget.h>
#include <qtadvanceddocking/DockManager.h>

namespace {

QPixmap cross(int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QGuiApplication::palette().color(QPalette::WindowText), side / 12.0,
                        Qt::SolidLine, Qt::RoundCap));
    const double margin = side * 0.28;
    painter.drawLine(QPointF(margin, margin), QPointF(side - margin, side - margin));
    painter.drawLine(QPointF(margin, side - margin), QPointF(side - margin, margin));
    return pixmap;
}

constexpr const char* kFocused = "focused"; // property of a dock area that the style sheet reads

ads::CDockAreaWidget* areaOf(QWidget* widget)
{
    while (widget != nullptr && qobject_cast<ads::CDockAreaWidget*>(widget) == nullptr)
        widget = widget->parentWidget();
    return qobject_cast<ads::CDockAreaWidget*>(widget);
}

void mark(ads::CDockAreaWidget* area, bool isFocused)
{
    if (area == nullptr || area->property(kFocused).toBool() == isFocused)
        return;
    area->setProperty(kFocused, isFocused);
    area->style()->unpolish(area); // reads the rules of the style sheet again
    area->style()->polish(area);
}

} // namespace

namespace desktop {

QString dockStyle()
{
    return QStringLiteral(R"(
ads--CDockContainerWidget { background: palette(window); }
ads--CDockContainerWidget ads--CDockSplitter::handle { background: palette(window); }
ads--CDockSplitter::handle:horizontal { width: 5px; }
ads--CDockSplitter::handle:vertical { height: 5px; }
ads--CDockAreaWidget { background: palette(base); border: 1px solid palette(mid); }
ads--CDockAreaWidget[focused="true"] { border: 1px solid palette(highlight); }
ads--CDockAreaTitleBar {
    background: palette(window);
    border: none;
    border-bottom: 1px solid palette(mid);
    padding: 0;
    min-height: 26px;
}
ads--CDockAreaTabBar { background: transparent; }
ads--CDockWidgetTab {
    background: transparent;
    border: none;
    border-right: 1px solid palette(mid);
    padding: 0 8px 0 4px;
    min-height: 26px;
}
ads--CDockWidgetTab[activeTab="true"] {
    background: palette(base);
    border-top: 2px solid palette(highlight);
}
ads--CDockWidgetTab QLabel { color: palette(text); }
ads--CDockWidget { background: palette(base); border: none; }
ads--CTitleBarButton { padding: 3px; border: none; background: transparent; }
ads--CTitleBarButton:hover, #tabCloseButton:hover { background: palette(midlight); }
#tabCloseButton { border: none; padding: 1px; margin-left: 4px; background: transparent; }
#tabCloseButton, #detachGroupButton, #dockAreaCloseButton, #tabsMenuButton {
    qproperty-iconSize: 14px;
}
)");
}

void showDockFocus(ads::CDockManager& docks)
{
    QPointer<ads::CDockAreaWidget> marked;
    QObject::connect(qApp, &QApplication::focusChanged, &docks,
                     [marked](QWidget* /*old*/, QWidget* now) mutable {
                         ads::CDockAreaWidget* const area = areaOf(now);
                         if (area != marked)
                             mark(marked, false);
                         mark(area, true);
                         marked = area;
                     });
}

QIcon dockCloseIcon()
{
    QIcon icon;
    for (const int side : {14, 16, 28, 32, 48})
        icon.addPixmap(cross(side));
    return icon;
}

} // namespace desktop
