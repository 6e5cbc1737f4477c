#include "map/ui/ViewChangeCommand.h"

#include "app/protocol/Events.h"
#include "app/protocol/StatusKeys.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/IEventManager.h"
#include "lum_sdk/SystemDictionaries.h"

void ViewChangeCommand::execute()
{
    if (IMapWindow* const window = map()) {
        const bool isDesign = parameters().text("caption") == "Design View";
        get_system_status_dictionary().set(status::kViewShowWhich, isDesign ? "1" : "0");
        host().eventManager().publish(events::kPaintingLayerUpdate, nullptr, 0);
        host().windows().activate(QStringLiteral("DataMap"));
        window->zoomAll();
    }
    announceStatus();
}
