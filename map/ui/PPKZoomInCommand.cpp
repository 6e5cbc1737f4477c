#include "map/ui/PPKZoomInCommand.h"

#include "lum_desktop_sdkx/IMapWindow.h"

void PPKZoomInCommand::execute()
{
    if (IMapWindow* const window = map())
        window->zoomIn();
}
