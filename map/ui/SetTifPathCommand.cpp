#include "map/ui/SetTifPathCommand.h"

#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "map/ui/AddOverlays.h"
#include "map/ui/OverlayTexts.h"
#include "project/ui/ProjectState.h"

void SetTifPathCommand::execute()
{
    QStringList paths;
    if (ProjectState::hasData()) {
        paths = FileDialog::getOpenFileNames(host().dialogParent(), OverlayTexts::chooserTitle(),
                                             OverlayTexts::chooserFilter());
        if (paths.isEmpty())
            return;
    }
    AddOverlays::add(host(), paths);
}
