#include "views/history/PointVisit.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "model/PointNumber.h"
#include "project/DataProcessDataManager.h"
#include "project/IPointList.h"
#include "views/history/HistoryTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace PointVisit {

namespace {

/// The point as the project has it: of a check point, the first of its measurements.
PointName presentName(const PointName& name)
{
    if (!isCheckPoint(name.point))
        return name;
    const auto* const line = DataProcessDataManager::instance().surveyPoints().findLine(name.line);
    if (line == nullptr)
        return name;
    const auto points = writtenOrder(*line);
    const auto found = std::ranges::find_if(points, [&](const SurveyPoint* point) {
        return writtenPointNumber(point->pointNumber) == name.point;
    });
    return found == points.end() ? name : PointName{name.line, (*found)->pointNumber};
}

} // namespace

void select(IDesktopHost& host, const HistoryItem& item)
{
    if (item.name.point.empty())
        return;
    const PointName name = presentName(item.name);
    auto* const list = host.windows().findAs<IPointList>(item.data == HistoryData::Design
                                                             ? QStringLiteral("Design Data List")
                                                             : QStringLiteral("Survey Data List"));
    if (list != nullptr &&
        !list->selectPoint(lum::toQString(name.line), lum::toQString(name.point)))
        host.tell(QCoreApplication::translate("PointVisit", "Point %1 is not in the project now.")
                      .arg(HistoryTexts::nameOf(item.name)));
}

void zoomTo(IDesktopHost& host, const HistoryItem& item)
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const PointName name = presentName(item.name);
    if (item.data == HistoryData::Design) {
        if (const DesignPoint* const point = manager.designPoints().find(name.line, name.point))
            PointHighlight::zoomTo(host, *point);
    } else if (const SurveyPoint* const point =
                   manager.surveyPoints().find(name.line, name.point)) {
        PointHighlight::zoomTo(host, *point);
    }
}

} // namespace PointVisit
