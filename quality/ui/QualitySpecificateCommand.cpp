#include "quality/ui/QualitySpecificateCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/DataProcessDataManager.h"
#include "quality/ui/DlgQCParamSet.h"

void QualitySpecificateCommand::execute()
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const basalt::Dictionary before(manager.qualityParameters());
    DlgQCParamSet(host().dialogParent(), manager.qualityParameters()).exec();
    if (!dictionary_same(before, manager.qualityParameters()))
        manager.markChanged();
}
