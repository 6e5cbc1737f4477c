#include "views/problems/ShowProblem.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "model/PointNumber.h"
#include "project/DataProcessDataManager.h"
#include "project/IPointList.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "quality/problems/Problem.h"

namespace {

/// No window shows the point of another problem beside this one.
void selectNothing(IDesktopHost& host)
{
    PointHighlight::clear(host);
    for (const char* const name : {"Design Data List", "Survey Data List"}) {
        if (auto* const list = host.windows().findAs<IPointList>(QLatin1String(name)))
            list->deselect();
    }
}

} // namespace

QString problemName(const Problem& problem)
{
    const QString line = lum::toQString(problem.line);
    return problem.point.empty()
               ? line
               : line + QLatin1Char('/') + lum::toQString(writtenPointNumber(problem.point.view()));
}

bool selectProblem(IDesktopHost& host, const Problem& problem)
{
    if (problem.point.empty()) {
        selectNothing(host);
        return true;
    }
    const QString line = lum::toQString(problem.line);
    const QString point = lum::toQString(problem.point);
    const bool isDesign = problem.isDesign;
    if (auto* const list = host.windows().findAs<IPointList>(
            isDesign ? QStringLiteral("Design Data List") : QStringLiteral("Survey Data List")))
        return list->selectPoint(line, point);
    host.eventManager().publish(isDesign ? events::kDesignPointSelected
                                         : events::kSurveyPointSelected,
                                payload::selectedPoint(point, line).constData(), 0);
    return true;
}

void zoomToProblem(IDesktopHost& host, const Problem& problem)
{
    if (!ProjectState::hasData() || problem.point.empty())
        return;
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    if (problem.isDesign) {
        if (const DesignPoint* const point =
                manager.designPoints().find(problem.line, problem.point))
            PointHighlight::zoomTo(host, *point);
    } else if (const SurveyPoint* const point =
                   manager.surveyPoints().find(problem.line, problem.point)) {
        PointHighlight::zoomTo(host, *point);
    }
}

void showHistoryOf(IDesktopHost& host, const Problem& problem)
{
    const QByteArray point =
        payload::selectedPoint(lum::toQString(problem.point), lum::toQString(problem.line));
    host.eventManager().publish(events::kShowPointHistory, point.constData(), 0);
}
