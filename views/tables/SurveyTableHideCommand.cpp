#include "views/tables/SurveyTableHideCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "views/tables/DlgSurveyColumns.h"

void SurveyTableHideCommand::execute()
{
    DlgSurveyColumns(host().dialogParent(), host().eventManager()).exec();
}
