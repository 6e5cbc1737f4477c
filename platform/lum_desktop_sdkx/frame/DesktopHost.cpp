#include "lum_desktop_sdkx/frame/DesktopHost.h"

ICoordTransformHelper* get_instance_ICoordTransformHelper(IDesktopHost* host)
{
    return &host->coordTransformHelper();
}
