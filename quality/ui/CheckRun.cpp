#include "quality/ui/CheckRun.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/DataProcessDataManager.h"

#include <QCoreApplication>

CheckResult CheckRun::run(IDesktopHost& host, const CheckKind& kind)
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    manager.run(kind);
    CheckResult result = manager.resultOf(kind);
    basalt::logInfo(result.finding.toStdString());
    host.tell(result.finding);
    return result;
}

void CheckRun::tellComplete(IDesktopHost& host, const QString& text, const CheckResult& result,
                            const char* silenceKey)
{
    LumMessageBox::ask(host.dialogParent(),
                       {.title = QCoreApplication::translate("CheckRun", "success"),
                        .text = text,
                        .details = result.finding,
                        .silenceKey = silenceKey});
}
