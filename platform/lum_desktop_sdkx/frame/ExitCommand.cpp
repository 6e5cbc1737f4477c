#include "lum_desktop_sdkx/frame/ExitCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"

#include <QTimer>
#include <QWidget>

void ExitCommand::execute()
{
    // Not at once: closing may delete this command while its action is still being triggered.
    QTimer::singleShot(0, host().dialogParent(), &QWidget::close);
}
