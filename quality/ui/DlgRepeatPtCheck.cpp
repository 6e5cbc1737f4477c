#include "quality/ui/DlgRepeatPtCheck.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/GroupedNumber.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "quality/CheckKinds.h"
#include "quality/ui/DlgRepeatChoice.h"

#include <QMenu>

DlgRepeatPtCheck::DlgRepeatPtCheck(IDesktopHost& host, CheckResult result)
    : ResultList(host, kRepeatPointCheck, std::move(result),
                 {tr("Repeat Point Check"), QSize(900, 450), Points::Survey})
{
    QAction* const copy = menu().actions().constFirst();
    auto* const remove = new QAction(tr("delete"), &menu());
    connect(remove, &QAction::triggered, this, &DlgRepeatPtCheck::deleteSelected);
    auto* const choose = new QAction(tr("&Resolve Repeats..."), &menu());
    connect(choose, &QAction::triggered, this, &DlgRepeatPtCheck::resolveSelected);
    menu().insertAction(copy, remove);
    menu().insertAction(copy, choose);
    menu().insertSeparator(copy);
}

std::vector<PointName> DlgRepeatPtCheck::selectedNames()
{
    std::vector<PointName> names;
    for (const int row : table().selectedRows())
        names.push_back(nameOf(table().model()->index(row, 0)));
    return names;
}

void DlgRepeatPtCheck::resolveSelected()
{
    DlgRepeatChoice::open(m_host).selectPointsOf(PointNames(selectedNames()));
}

void DlgRepeatPtCheck::deleteSelected()
{
    const std::vector<PointName> names = selectedNames();
    if (names.empty())
        return;
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const std::size_t deleted = manager.deleteSurveyPoints(names);
    CheckResult left = manager.resultOf(kRepeatPointCheck);
    const QString told =
        tr("Results deleted: %1. %2").arg(lum::groupedNumber(deleted), left.finding);
    setResult(std::move(left));
    m_host.eventManager().publish(events::kRefreshSurveyLayer, nullptr, 0);
    m_host.tell(told);
}
