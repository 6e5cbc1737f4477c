#include "lum_desktop_sdkx/dialogs/ScreenFit.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace desktop {

namespace {

constexpr int kBorder = 2; // of a window frame that is not known yet, pixels

/// A window that is not shown yet will come up beside its parent.
const QWidget& shownWindow(const QWidget& window)
{
    const QWidget* const parent = window.parentWidget();
    return window.isVisible() || parent == nullptr ? window : *parent->window();
}

/// The frame that the window manager draws, or will most likely draw.
QMargins frameOf(const QWidget& window)
{
    const QWidget& known = shownWindow(window);
    const QRect outside = known.frameGeometry();
    const QRect inside = known.geometry();
    if (known.isVisible() && outside != inside)
        return {inside.left() - outside.left(), inside.top() - outside.top(),
                outside.right() - inside.right(), outside.bottom() - inside.bottom()};
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return {kBorder, title, kBorder, kBorder};
}

QRect screenOf(const QWidget& window)
{
    return shownWindow(window).screen()->availableGeometry();
}

/// Whether all of `area` lies on screens. It may lie on several.
bool isSeen(const QRect& area)
{
    qint64 hidden = qint64(area.width()) * area.height();
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect part = area & screen->availableGeometry();
        hidden -= qint64(part.width()) * part.height();
    }
    return hidden <= 0;
}

} // namespace

QSize largestSize(const QWidget& window)
{
    const QRect room = screenOf(window).marginsRemoved(frameOf(window));
    return room.size();
}

void fitToScreen(QWidget& window)
{
    if (window.isMaximized() || window.isFullScreen())
        return;
    const QMargins frame = frameOf(window);
    if (isSeen(window.geometry().marginsAdded(frame)))
        return;
    window.resize(window.size().boundedTo(largestSize(window)));
    if (!window.isVisible() && !window.testAttribute(Qt::WA_Moved))
        return; // the window manager will find a place
    const QRect room = screenOf(window).marginsRemoved(frame);
    QRect place = window.geometry();
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    window.setGeometry(place);
}

} // namespace desktop
