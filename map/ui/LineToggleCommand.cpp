#include "map/ui/LineToggleCommand.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_sdk/files/SystemDictionaries.h"

LineToggleCommand::LineToggleCommand(const char* config, IDesktopHost* host, const char* statusKey)
    : MapCommandBase(config, host), m_statusKey(statusKey)
{
}

void LineToggleCommand::execute()
{
    if (IMapWindow* const window = map()) {
        get_system_status_dictionary().set(m_statusKey, isChecked() ? "0" : "1");
        window->zoomAll();
    }
    announceStatus();
}

bool LineToggleCommand::isChecked() const
{
    return get_system_status_dictionary().integer(m_statusKey, 1) == 1;
}
