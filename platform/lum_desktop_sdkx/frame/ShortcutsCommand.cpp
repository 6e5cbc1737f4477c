#include "lum_desktop_sdkx/frame/ShortcutsCommand.h"

#include "lum_desktop_sdkx/frame/ShortcutsWindow.h"
#include "lum_desktop_sdkx/IDesktopHost.h"

#include <QMainWindow>

void ShortcutsCommand::execute()
{
    auto* const frame = qobject_cast<QMainWindow*>(host().dialogParent());
    delete frame->findChild<ShortcutsWindow*>(); // its list may be old
    auto* const window = new ShortcutsWindow(*frame);
    window->show();
}
