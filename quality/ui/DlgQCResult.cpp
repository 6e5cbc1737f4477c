#include "quality/ui/DlgQCResult.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "quality/QualityResultModel.h"

#include <QAbstractTableModel>
#include <QHeaderView>

DlgQCResult::DlgQCResult(IDesktopHost& host, std::unique_ptr<QAbstractTableModel> result)
    : ResultList(host, std::move(result),
                 {tr("Quality Check Result"), QSize(750, 450), "Survey Data List"})
{
    table().horizontalHeader()->setSectionResizeMode(kQualityDescribeColumn,
                                                     QHeaderView::ResizeToContents);
}
