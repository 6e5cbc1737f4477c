#include "lum_desktop_sdkx/map/MapComponents.h"

#include "lum_desktop_sdkx/map/BoundaryLayer.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_desktop_sdkx/map/RasterLayerImp.h"
#include "lum_desktop_sdkx/map/ReactorDefault.h"
#include "lum_desktop_sdkx/Registration.h"

void registerMapComponents()
{
    using namespace desktop::registration;
    static const bool once = [] {
        window<MapWindow>("MapWindow", "地图");
        layer<BoundaryLayer>("BoundaryLayer", "边界图层");
        layer<RasterLayerImp>("RasterLayerImp", "在线地图图层");
        return reactor<ReactorDefault>("ReactorDefault", "默认");
    }();
    static_cast<void>(once);
}
