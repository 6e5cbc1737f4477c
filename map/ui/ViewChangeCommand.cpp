#include "map/ui/ViewChangeCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Transform.h"
#include "map/ui/IDataLayer.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

void ViewChangeCommand::execute()
{
    if (IMapWindow* const window = map()) {
        const bool isDesign = parameters().text("caption") == "Design View";
        get_system_status_dictionary().set(status::kViewShowWhich, isDesign ? "1" : "0");
        host().eventManager().publish(events::kPaintingLayerUpdate, nullptr, 0);
        host().windows().activate(QStringLiteral("DataMap"));
        if (!mayStay(*window))
            window->zoomAll();
    }
    announceStatus();
}

bool ViewChangeCommand::mayStay(IMapWindow& window) const
{
    if (parameters().integer("keep_place") != 1)
        return false;
    const auto* const layer =
        dynamic_cast<IDataLayer*>(window.layers().find(QStringLiteral("DataProcessLayer")));
    return layer != nullptr && layer->hasMarkIn(window.transform().visibleExtent());
}
