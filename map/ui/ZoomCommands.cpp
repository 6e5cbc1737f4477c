#include "map/ui/ZoomCommands.h"

#include "lum_desktop_sdkx/IMapWindow.h"

void PPKZoomInCommand::execute()
{
    if (IMapWindow* const window = map())
        window->zoomIn();
}

void PPKZoomOutCommand::execute()
{
    if (IMapWindow* const window = map())
        window->zoomOut();
}

void PPKZoomAllCommand::execute()
{
    if (IMapWindow* const window = map())
        window->zoomAll();
}
