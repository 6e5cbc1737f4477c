#include "quality/ui/EmptyPointCheckCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "protocol/Events.h"
#include "quality/ui/CheckRun.h"
#include "quality/ui/DlgEmptyPtResult.h"

#include <QCoreApplication>

void EmptyPointCheckCommand::execute()
{
    CheckResult result = CheckRun::run(host(), kEmptyPointCheck);
    CheckRun::tellComplete(
        host(), QCoreApplication::translate("EmptyPointCheckCommand", "Empty Check Complete!"),
        result, "empty_checked");
    host().eventManager().publish(events::kRefreshDesignTable, nullptr, 0);
    CheckRun::show<DlgEmptyPtResult>(host(), std::move(result));
}
