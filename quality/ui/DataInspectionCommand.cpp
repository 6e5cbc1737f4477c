#include "quality/ui/DataInspectionCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "protocol/Events.h"
#include "quality/ui/CheckRun.h"
#include "quality/ui/DlgQCResult.h"

#include <QCoreApplication>

void DataInspectionCommand::execute()
{
    CheckResult result = CheckRun::run(host(), kQualityCheck);
    CheckRun::tellComplete(
        host(), QCoreApplication::translate("DataInspectionCommand", "Quality Check Complete!"),
        result, "quality_checked");
    host().eventManager().publish(events::kRefreshDesignTable, nullptr, 0);
    host().eventManager().publish(events::kRefreshSurveyTable, nullptr, 0);
    CheckRun::show<DlgQCResult>(host(), std::move(result));
}
