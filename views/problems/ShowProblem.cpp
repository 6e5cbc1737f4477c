#include "views/problems/ShowProblem.h"

#include "exchange/ShownTimes.h"
#include "lum_desktop_sdkx/ICoordTransformHelper.h"
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
#include "quality/problems/GroupResults.h"
#include "quality/problems/Problem.h"

#include <QPolygonF>

namespace {

/// No window shows the point of another problem beside this one.
void selectNothing(IDesktopHost& host)
{
    host.eventManager().publish(events::kSurveyPointSelected,
                                payload::selectedPoint({}, {}).constData(), 0);
    for (const char* const name : {"Design Data List", "Survey Data List"}) {
        if (auto* const list = host.windows().findAs<IPointList>(QLatin1String(name)))
            list->deselect();
    }
}

/// The map coordinates of what a problem without a point is about: results, or the points of a
/// line.
QPolygonF placesOf(IDesktopHost& host, const Problem& problem)
{
    const ICoordTransformHelper& helper = host.coordTransformHelper();
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    QPolygonF places;
    const auto addLine = [&](const auto* line) {
        if (line == nullptr)
            return;
        for (const auto& point : *line)
            places << helper.projectToMap(point.north, point.east);
    };
    if (problem.line.empty()) {
        for (const SurveyPoint* const point :
             groupResults(problem, manager.surveyPoints(), shownTimes()))
            places << helper.projectToMap(point->north, point->east);
    } else if (problem.isDesign) {
        addLine(manager.designPoints().findLine(problem.line));
    } else {
        addLine(manager.surveyPoints().findLine(problem.line));
    }
    return places;
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
        return PointHighlight::markGroup(host, placesOf(host, problem));
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
    if (!ProjectState::hasData())
        return;
    if (problem.point.empty())
        return PointHighlight::zoomToGroup(host, placesOf(host, problem));
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
