#include "app/CoordFormatCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

void CoordFormatCommand::execute()
{
    if (isChecked())
        return;
    IDictionary& values = get_system_status_dictionary();
    values.set(status::kDegreeFormat, std::to_string(format()));
    // A survey table that shows all lines is cleared, not rewritten.
    const bool isAllLines = values.integer(status::kShowAllLines) != 0;
    host().eventManager().publish(
        isAllLines ? events::kClearSurveyTable : events::kRefreshSurveyTable, nullptr, 0);
}

bool CoordFormatCommand::isChecked() const
{
    return get_system_status_dictionary().integer(status::kDegreeFormat) == format();
}

int CoordFormatCommand::format() const
{
    return parameters().text("caption") == "Degree-minute-second Format" ? 1 : 0;
}
