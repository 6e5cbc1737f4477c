#include "quality/ui/DataInspectionCommand.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "quality/CheckKinds.h"
#include "quality/ui/DlgQCResult.h"

#include <QAbstractTableModel>
#include <QCoreApplication>

#include <memory>

void DataInspectionCommand::execute()
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    manager.run(kQualityCheck);
    LumMessageBox::information(
        host().dialogParent(), QCoreApplication::translate("DataInspectionCommand", "success"),
        QCoreApplication::translate("DataInspectionCommand", "Quality Check Complete!"));
    host().eventManager().publish(events::kRefreshDesignTable, nullptr, 0);
    host().eventManager().publish(events::kRefreshSurveyTable, nullptr, 0);
    // Not modal, and deletes itself when it is closed.
    auto list = std::make_unique<DlgQCResult>(host(), manager.resultOf(kQualityCheck));
    list.release()->show();
}
