#include "map/ui/FindDataLayer.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "map/ui/IDataLayer.h"

IDataLayer* findDataLayer(IDesktopHost& host)
{
    auto* const map = host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    return map == nullptr
               ? nullptr
               : dynamic_cast<IDataLayer*>(map->layers().find(QStringLiteral("DataProcessLayer")));
}
