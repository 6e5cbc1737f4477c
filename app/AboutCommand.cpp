#include "app/AboutCommand.h"

#include "lum_desktop_sdkx/dialogs/DlgAbout.h"
#include "lum_desktop_sdkx/IDesktopHost.h"

#include <QCoreApplication>

void AboutCommand::execute()
{
    DlgAbout(host().dialogParent(),
             QCoreApplication::translate("AboutCommand", "Stake-out data of land seismic surveys"))
        .exec();
}
