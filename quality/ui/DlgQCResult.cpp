#include "quality/ui/DlgQCResult.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/Text.h"
#include "quality/QualityResultModel.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>

DlgQCResult::DlgQCResult(IDesktopHost& host, std::unique_ptr<QAbstractTableModel> result)
    : ResultList(host, std::move(result),
                 {tr("Quality Check Result"), QSize(750, 450), Points::Survey})
{
    table().horizontalHeader()->setSectionResizeMode(kQualityDescribeColumn,
                                                     QHeaderView::ResizeToContents);
    const lum::LengthUnit unit = lum::lengthUnitOf(get_project_coord_transform().parameters());
    if (lum::isMetre(unit))
        return;
    const QString text = tr("Lengths in this list are metres, as the limits are. The project's "
                            "coordinates and line deviations are in another unit: %1.");
    auto* const note = new QLabel(text.arg(lum::toQString(lum::symbolOf(unit))), this);
    note->setWordWrap(true);
    layout()->addWidget(note);
}
