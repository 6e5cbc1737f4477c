#include "quality/ui/DlgResurveyCheckResult.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "quality/CheckKinds.h"
#include "quality/ResurveyResultModel.h"

#include <QHeaderView>

DlgResurveyCheckResult::DlgResurveyCheckResult(IDesktopHost& host, CheckResult result)
    : ResultList(host, kResurveyCheck, std::move(result),
                 {tr("Resurvey Check Result"), QSize(900, 450), Points::Survey})
{
    table().horizontalHeader()->setSectionResizeMode(kResurveyDescribeColumn,
                                                     QHeaderView::ResizeToContents);
}
