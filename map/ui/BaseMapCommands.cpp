#include "map/ui/BaseMapCommands.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/raster/UserBaseMaps.h"
#include "map/ui/BaseMapSwitch.h"
#include "map/ui/DlgBaseMaps.h"

#include <QCoreApplication>

namespace {

/// Shows `map`, or tells that the list has none.
void show(IDesktopHost& host, const lum::BaseMap* map)
{
    if (map != nullptr)
        BaseMapSwitch::turnOn(host, *map);
    else
        host.tell(QCoreApplication::translate(
            "BaseMapKindCommand",
            "The list holds no such base map. Map > Base Map > Manage adds one."));
}

} // namespace

bool LoadOnlineMapCommand::isEnabled() const
{
    return BaseMapSwitch::isPossible(host());
}

void LoadOnlineMapCommand::execute()
{
    if (isChecked())
        BaseMapSwitch::turnOff(host());
    else
        show(host(), lum::chosenBaseMap());
}

bool LoadOnlineMapCommand::isChecked() const
{
    return BaseMapSwitch::isOn(host());
}

QString LoadOnlineMapCommand::caption() const
{
    return isChecked() ? QCoreApplication::translate("LoadOnlineMapCommand", "close online map")
                       : QCoreApplication::translate("LoadOnlineMapCommand", "show online map");
}

BaseMapKindCommand::BaseMapKindCommand(const char* config, IDesktopHost* host,
                                       lum::BaseMapKind kind)
    : MapCommandBase(config, host), m_kind(kind)
{
}

bool BaseMapKindCommand::isEnabled() const
{
    return BaseMapSwitch::isOn(host());
}

void BaseMapKindCommand::execute()
{
    show(host(), lum::chosenBaseMap(m_kind));
}

bool BaseMapKindCommand::isChecked() const
{
    const lum::BaseMap* const shown = lum::lastBaseMap();
    return shown != nullptr && shown->kind == m_kind && BaseMapSwitch::isOn(host());
}

LoadRoadMapCommand::LoadRoadMapCommand(const char* config, IDesktopHost* host)
    : BaseMapKindCommand(config, host, lum::BaseMapKind::Road)
{
}

LoadSatMapCommand::LoadSatMapCommand(const char* config, IDesktopHost* host)
    : BaseMapKindCommand(config, host, lum::BaseMapKind::Satellite)
{
}

LoadTerrainMapCommand::LoadTerrainMapCommand(const char* config, IDesktopHost* host)
    : BaseMapKindCommand(config, host, lum::BaseMapKind::Terrain)
{
}

void ManageBaseMapsCommand::execute()
{
    DlgBaseMaps(host()).exec();
}
