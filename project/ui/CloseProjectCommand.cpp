#include "project/ui/CloseProjectCommand.h"

#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/ProjectSession.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

void CloseProjectCommand::execute()
{
    if (!ProjectSession::isOpen())
        return;
    if (!get_system_status_dictionary().text(status::kProjectPath).empty())
        host().commands().execute(QStringLiteral("Save Project"));
    if (!ProjectSession::mayForget(host()))
        return;
    DataProcessDataManager::instance()->clear();
    IEventManager& events = host().eventManager();
    events.publish(events::kRefreshDesignLayer, nullptr, 0);
    events.publish(events::kRefreshSurveyLayer, nullptr, 0);
    ProjectSession::clearStatus(host());
    events.publish(events::kUpdateSystemStatus, nullptr, 0);
}
