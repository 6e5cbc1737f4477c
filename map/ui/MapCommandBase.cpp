#include "map/ui/MapCommandBase.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/IEventManager.h"
#include "protocol/Events.h"

IMapWindow* MapCommandBase::map() const
{
    return host().windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
}

void MapCommandBase::announceStatus() const
{
    host().eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
}
