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
#include <utility>

void DataInspectionCommand::execute()
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    manager.run(kQualityCheck);
    auto result = manager.resultOf(kQualityCheck);
    LumMessageBox::ask(
        host().dialogParent(),
        {.title = QCoreApplication::translate("DataInspectionCommand", "success"),
         .text = QCoreApplication::translate("DataInspectionCommand", "Quality Check Complete!"),
         .details = QCoreApplication::translate("DataInspectionCommand", "Faults found: %1.")
                        .arg(result->rowCount()),
         .silenceKey = "quality_checked"});
    host().eventManager().publish(events::kRefreshDesignTable, nullptr, 0);
    host().eventManager().publish(events::kRefreshSurveyTable, nullptr, 0);
    // Not modal, and deletes itself when it is closed.
    auto list = std::make_unique<DlgQCResult>(host(), std::move(result));
    list.release()->show();
}
