#include "map/ui/DrawBoundaryCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

void DrawBoundaryCommand::execute()
{
    if (IMapWindow* const window = map()) {
        IDictionary& values = get_system_status_dictionary();
        if (values.integer(status::kDrawBoundaryRect) == 0) {
            values.set(status::kDrawBoundaryRect, "1");
            host().eventManager().publish(events::kInitBoundaryRect, nullptr, 0);
        } else {
            values.set(status::kDrawBoundaryRect, "0");
        }
        window->zoomAll();
    }
    announceStatus();
}

bool DrawBoundaryCommand::isChecked() const
{
    return get_system_status_dictionary().integer(status::kDrawBoundaryRect) == 1;
}
