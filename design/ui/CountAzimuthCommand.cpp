#include "design/ui/CountAzimuthCommand.h"

#include "design/ui/CountAzimuthDlg.h"
#include "lum_desktop_sdkx/IDesktopHost.h"

#include <QPointer>

void CountAzimuthCommand::execute()
{
    static QPointer<CountAzimuthDlg> calculator; // its parent deletes it
    if (calculator == nullptr)
        calculator = new CountAzimuthDlg(host());
    calculator->show();
    calculator->raise();
    calculator->activateWindow();
}
