#include "project/ui/CloseProjectCommand.h"

#include "app/protocol/Events.h"
#include "app/protocol/StatusKeys.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/IEventManager.h"
#include "lum_sdk/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/ProjectSession.h"

#include <QCoreApplication>

namespace {

/// Closing now would throw away what could not be saved.
bool wantsToLoseChanges(IDesktopHost& host)
{
    using Button = LumMessageBox::Button;
    return LumMessageBox::warning(
               host.dialogParent(),
               QCoreApplication::translate("CloseProjectCommand", "information"),
               QCoreApplication::translate("CloseProjectCommand",
                                           "The project could not be saved. Close it all the same "
                                           "and lose the changes?"),
               LumMessageBox::Buttons(Button::Yes) | Button::No) == Button::Yes;
}

} // namespace

void CloseProjectCommand::execute()
{
    if (!ProjectSession::isOpen())
        return;
    DataProcessDataManager& manager = *DataProcessDataManager::instance();
    if (!get_system_status_dictionary().text(status::kProjectPath).empty())
        host().commands().execute(QStringLiteral("Save Project"));
    if (manager.isSaveOwed() && !wantsToLoseChanges(host()))
        return;
    manager.clear();
    IEventManager& events = host().eventManager();
    events.publish(events::kRefreshDesignLayer, nullptr, 0);
    events.publish(events::kRefreshSurveyLayer, nullptr, 0);
    ProjectSession::clearStatus();
    events.publish(events::kUpdateSystemStatus, nullptr, 0);
}
