#include "lum_desktop_sdkx/frame/GoToWindowCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/Text.h"

#include <QAbstractItemView>

namespace {

QWidget& keyboardPart(QWidget& window)
{
    if (QWidget* const last = window.focusWidget())
        return *last;
    auto* const list = window.findChild<QAbstractItemView*>();
    return list != nullptr ? *list : window;
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
