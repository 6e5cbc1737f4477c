#include "quality/ui/DataInspectionCommand.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "quality/ui/DlgQCResult.h"

#include <QCoreApplication>

#include <memory>

void DataInspectionCommand::execute()
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    manager.checkQuality();
    LumMessageBox::information(
        host().dialogParent(), QCoreApplication::translate("DataInspectionCommand", "success"),
        QCoreApplication::translate("DataInspectionCommand", "Quality Check Complete!"));
    host().eventManager().publish(events::kRefreshDesignTable, nullptr, 0);
    host().eventManager().publish(events::kRefreshSurveyTable, nullptr, 0);
    // Shown beside the window that it works on; it ends itself when it is closed.
    auto dialog = std::make_unique<DlgQCResult>(host(), manager.describeQuality());
    dialog.release()->show();
}
