#include "lum_desktop_sdkx/frame/ExitCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"

#include <QTimer>
#include <QWidget>

void ExitCommand::execute()
{
    // Later: closing may end this command, whose action is still being triggered.
    QTimer::singleShot(0, host().dialogParent(), &QWidget::close);
}
