#include "quality/ui/QualitySpecificateCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/DataProcessDataManager.h"
#include "quality/ui/DlgQCParamSet.h"

void QualitySpecificateCommand::execute()
{
    DlgQCParamSet(host().dialogParent(), DataProcessDataManager::instance().qualityParameters())
        .exec();
}
