#include "project/ui/TimeZomeDlgCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/ui/TimeZomeDlg.h"

void TimeZomeDlgCommand::execute()
{
    TimeZomeDlg(host().dialogParent(), host().eventManager()).exec();
}
