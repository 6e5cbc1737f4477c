#include "lum_desktop_sdkx/frame/ResetLayoutCommand.h"

#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/IDesktopHost.h"

void ResetLayoutCommand::execute()
{
    if (auto* const frame = qobject_cast<MainFrame*>(host().dialogParent()))
        frame->resetArrangement();
}
