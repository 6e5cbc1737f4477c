#include "lum_desktop_sdkx/frame/FullScreenCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"

#include <QWidget>

void FullScreenCommand::execute()
{
    QWidget& frame = *host().dialogParent();
    frame.setWindowState(frame.windowState() ^ Qt::WindowFullScreen);
}

bool FullScreenCommand::isChecked() const
{
    return host().dialogParent()->isFullScreen();
}
