#include "map/ui/PPKZoomAllCommand.h"

#include "lum_desktop_sdkx/IMapWindow.h"

void PPKZoomAllCommand::execute()
{
    if (IMapWindow* const window = map())
        window->zoomAll();
}
