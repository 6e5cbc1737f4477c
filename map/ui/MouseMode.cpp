#include "map/ui/MouseMode.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"

#include <QCursor>

#include <string>

namespace MouseMode {

int current()
{
    return get_system_status_dictionary().integer(status::kMouseMode, kPick);
}

void set(int mode)
{
    get_system_status_dictionary().set(status::kMouseMode, std::to_string(mode));
}

void end(IMapWindow& map, int mode)
{
    if (current() != mode)
        return;
    set(kPick);
    map.setMapCursor(Qt::ArrowCursor);
}

void installPicking(IMapWindow& map)
{
    map.installReactor(QStringLiteral("ReactorDefault"));
    map.installReactor(QStringLiteral("SeletePointReactor"));
}

} // namespace MouseMode
