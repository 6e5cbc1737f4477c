#include "quality/ui/ReSurveyPointCheckCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "protocol/Events.h"
#include "quality/ui/CheckRun.h"
#include "quality/ui/DlgResurveyCheckResult.h"

#include <QCoreApplication>

void ReSurveyPointCheckCommand::execute()
{
    CheckResult result = CheckRun::run(host(), kResurveyCheck);
    host().eventManager().publish(events::kResurveysChecked, nullptr, 0);
    CheckRun::tellComplete(
        host(),
        QCoreApplication::translate("ReSurveyPointCheckCommand", "Resurvey Check Complete!"),
        result, "resurveys_checked");
    CheckRun::show<DlgResurveyCheckResult>(host(), std::move(result));
}
