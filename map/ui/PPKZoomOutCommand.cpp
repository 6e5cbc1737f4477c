#include "map/ui/PPKZoomOutCommand.h"

#include "lum_desktop_sdkx/IMapWindow.h"

void PPKZoomOutCommand::execute()
{
    if (IMapWindow* const window = map())
        window->zoomOut();
}
