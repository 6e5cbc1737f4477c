#include "lum_desktop_sdkx/frame/GoToWindowCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/Text.h"

#include <QAbstractItemView>

namespace {

/// What has had the focus last, or the first list; of a window with pages on the page that it
/// shows.
QWidget& keyboardPart(QWidget& window)
{
    QWidget* const last = window.focusWidget();
    if (last != nullptr && last->isVisibleTo(&window))
        return *last;
    const auto lists = window.findChildren<QAbstractItemView*>();
    for (QAbstractItemView* const list : lists) {
        if (list->isVisibleTo(&window) && list->focusPolicy() != Qt::NoFocus)
            return *list;
    }
    return window;
}

} // namespace

bool GoToWindowCommand::isEnabled() const
{
    return host().windows().find(windowName()) != nullptr;
}

void GoToWindowCommand::execute()
{
    IWindow* const window = host().windows().find(windowName());
    if (window == nullptr)
        return;
    host().windows().activate(windowName());
    window->widget()->window()->activateWindow(); // it may float
    keyboardPart(*window->widget()).setFocus(Qt::ShortcutFocusReason);
}

QString GoToWindowCommand::windowName() const
{
    return lum::toQString(parameters().text("window"));
}
