#include "app/AboutCommand.h"

#include "lum_desktop_sdkx/dialogs/DlgAbout.h"
#include "lum_desktop_sdkx/IDesktopHost.h"

void AboutCommand::execute()
{
    DlgAbout(host().dialogParent()).exec();
}
