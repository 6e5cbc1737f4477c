#include "lum_desktop_sdkx/map/MapComponents.h"

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/map/BoundaryLayer.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_desktop_sdkx/map/ReactorDefault.h"

namespace {

bool registerAll()
{
    using Window = desktop::Maker<IWindow, MapWindow, IDesktopHost*>;
    using Layer = desktop::Maker<ILayerViewer, BoundaryLayer, IDesktopHost*>;
    using Reactor = desktop::Maker<IReactor, ReactorDefault, IMapWindow*>;
    extensible_factory_register_IWindow("MapWindow", "地图", Window::create, Window::destroy);
    extensible_factory_register_ILayerViewer("BoundaryLayer", "边界图层", Layer::create,
                                             Layer::destroy);
    extensible_factory_register_IReactor("ReactorDefault", "默认", Reactor::create,
                                         Reactor::destroy);
    return true;
}

} // namespace

void registerMapComponents()
{
    static const bool kIsRegistered = registerAll();
    static_cast<void>(kIsRegistered);
}
