#include "map/ui/BaseMapSwitch.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/raster/UserBaseMaps.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

#include <QCoreApplication>

namespace BaseMapSwitch {

namespace {

void set(IDesktopHost& host, bool isOn)
{
    get_system_status_dictionary().set(status::kUseGrid, isOn ? "1" : "0");
    host.eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
}

/// Also for the user who wants to know which machine learns where the survey is.
QString sourceOf(const lum::BaseMap& map)
{
    const QString machine = lum::hostOf(map);
    return machine.isEmpty()
               ? QCoreApplication::translate("BaseMapSwitch", "Base map: %1.").arg(map.name)
               : QCoreApplication::translate("BaseMapSwitch", "Base map: %1, from %2.")
                     .arg(map.name, machine);
}

} // namespace

bool isPossible(IDesktopHost& host)
{
    return ProjectState::isOpen() &&
           get_project_coord_transform().isValid(
               static_cast<std::int32_t>(CoordDirection::Target)) &&
           host.windows().findAs<IMapWindow>(QStringLiteral("DataMap")) != nullptr;
}

bool isOn(IDesktopHost& host)
{
    return get_system_status_dictionary().integer(status::kUseGrid) == 1 && isPossible(host);
}

void turnOn(IDesktopHost& host, const lum::BaseMap& map)
{
    if (const QString fault = lum::faultOf(map); !fault.isEmpty()) {
        host.tell(fault);
        return;
    }
    lum::chooseBaseMap(map);
    host.tell(sourceOf(map));
    set(host, true);
}

void turnOff(IDesktopHost& host)
{
    host.tell({});
    set(host, false);
}

void restart(IDesktopHost& host)
{
    if (!isOn(host))
        return;
    set(host, false);
    set(host, true);
}

} // namespace BaseMapSwitch
