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

#include <string>

void ViewChangeCommand::execute()
{
    if (IMapWindow* const window = map()) {
        get_system_status_dictionary().set(status::kViewShowWhich, std::to_string(view()));
        host().eventManager().publish(events::kPaintingLayerUpdate, nullptr, 0);
        host().windows().activate(QStringLiteral("DataMap"));
        const auto* const layer =
            dynamic_cast<IDataLayer*>(window->layers().find(QStringLiteral("DataProcessLayer")));
        if (layer == nullptr || !layer->hasMarkIn(window->transform().visibleExtent()))
            window->zoomAll();
    }
    announceStatus();
}

bool ViewChangeCommand::isChecked() const
{
    return get_system_status_dictionary().integer(status::kViewShowWhich, 1) == view();
}

int ViewChangeCommand::view() const
{
    return parameters().text("caption") == "Design View" ? 1 : 0;
}
