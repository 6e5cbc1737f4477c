#include "quality/ui/QualitySpecificateCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/DataProcessDataManager.h"
#include "quality/ui/DlgQCParamSet.h"

void QualitySpecificateCommand::execute()
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    basalt::Dictionary limits(manager.qualityParameters());
    if (DlgQCParamSet(host().dialogParent(), limits).exec() == QDialog::Accepted)
        manager.setQualityParameters(limits);
}
