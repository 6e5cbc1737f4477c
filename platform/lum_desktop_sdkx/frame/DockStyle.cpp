#include "lum_desktop_sdkx/frame/DockStyle.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

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

QIcon dockCloseIcon()
{
    QIcon icon;
    for (const int side : {14, 16, 28, 32, 48})
        icon.addPixmap(cross(side));
    return icon;
}

} // namespace desktop
