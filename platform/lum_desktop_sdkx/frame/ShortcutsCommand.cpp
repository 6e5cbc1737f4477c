#include "lum_desktop_sdkx/frame/ShortcutsCommand.h"

#include "lum_desktop_sdkx/frame/ShortcutsWindow.h"
#include "lum_desktop_sdkx/IDesktopHost.h"

#include <QMainWindow>

void ShortcutsCommand::execute()
{
    auto* const frame = qobject_cast<QMainWindow*>(host().dialogParent());
    if (auto* const old = frame->findChild<ShortcutsWindow*>())
        old->close(); // the keys may have changed since
    auto* const window = new ShortcutsWindow(*frame);
    window->show();
}
