#include "quality/ui/DlgQCResult.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "quality/CheckKinds.h"
#include "quality/QualityResultModel.h"

#include <QHeaderView>

DlgQCResult::DlgQCResult(IDesktopHost& host, CheckResult result)
    : ResultList(host, kQualityCheck, std::move(result),
                 {tr("Quality Check Result"), QSize(750, 450), Points::Survey})
{
    table().horizontalHeader()->setSectionResizeMode(kQualityDescribeColumn,
                                                     QHeaderView::ResizeToContents);
}
