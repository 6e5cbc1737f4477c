#include "views/SelectionFollower.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/ILineList.h"
#include "project/IPointList.h"
#include "project/IProblemList.h"
#include "protocol/Events.h"
#include "views/SelectedPoint.h"

#include <QScopedValueRollback>
#include <QWidget>

#include <cstring>
#include <type_traits>

namespace {

constexpr const char* kResults = "Survey Data List";
constexpr const char* kDesign = "Design Data List";

bool isInFront(const IWindowRegistry& windows, const QString& name)
{
    IWindow* const window = windows.find(name);
    return window != nullptr && window->widget() != nullptr && window->widget()->isVisible();
}

/// Shows a point in the windows of these names.
/// \returns false, and changes nothing, when there is no such point
template <class Points>
bool show(IDesktopHost& host, const Points& points, const PointName& name, const char* pointList,
          const char* lineList)
{
    const auto* const point = points.find(name.line, name.point);
    if (point == nullptr)
        return false;
    IWindowRegistry& windows = host.windows();
    QStringList uncovered{QStringLiteral("DataMap")};
    const QString problemList = QStringLiteral("Problems List");
    auto* const problems = windows.findAs<IProblemList>(problemList);
    if (problems != nullptr && problems->followPoint(std::is_same_v<Points, DesignPoints>, name))
        uncovered << problemList;
    const QString statistics = QStringLiteral("Statistics");
    if (isInFront(windows, statistics))
        uncovered << statistics;
    if (auto* const list = windows.findAs<IPointList>(QLatin1String(pointList))) {
        windows.reveal(QLatin1String(pointList), uncovered);
        list->followPoint(lum::toQString(name.line), lum::toQString(name.point));
    }
    if (auto* const list = windows.findAs<ILineList>(QLatin1String(lineList)))
        list->followLine(lum::toQString(name.line));
    PointHighlight::mark(host, *point);
    return true;
}

void deselect(IDesktopHost& host, const char* pointList)
{
    if (auto* const list = host.windows().findAs<IPointList>(QLatin1String(pointList)))
        list->deselect();
}

} // namespace

SelectionFollower::SelectionFollower(IDesktopHost& host)
    : m_host(host),
      m_subscription(*this,
                     lum::eventNames({events::kSurveyPointSelected, events::kDesignPointSelected,
                                      events::kStationPointSelected, events::kRefreshSurveyLayer,
                                      events::kRefreshDesignLayer}),
                     host.eventManager())
{
}

void SelectionFollower::handleEvent(const char* eventName, const char* payload, int /*reserved*/)
{
    if (m_isFollowing || !DataProcessDataManager::hasInstance())
        return;
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    basalt::Dictionary names;
    payload::read(payload, names);
    follow(eventName, names);
}

void SelectionFollower::follow(const char* eventName, const IDictionary& names)
{
    const auto is = [&](const char* name) { return std::strcmp(eventName, name) == 0; };
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const PointName name = selectedPoint(names);
    if (is(events::kSurveyPointSelected)) {
        if (!show(m_host, manager.surveyPoints(), name, kResults, "Survey Lines"))
            return;
        deselect(m_host, kDesign);
        remember(Points::Survey, name);
    } else if (is(events::kDesignPointSelected)) {
        if (!show(m_host, manager.designPoints(), name, kDesign, "Design Lines"))
            return;
        deselect(m_host, kResults);
        remember(Points::Design, name);
    } else if (is(events::kStationPointSelected)) {
        PointHighlight::markStation(m_host, names.integer("stationId", -1));
        m_marked = Points::None;
        deselect(m_host, kResults);
        deselect(m_host, kDesign);
    } else {
        clearLostMark();
    }
}

void SelectionFollower::remember(Points points, const PointName& name)
{
    m_marked = points;
    m_markedName = name;
}

void SelectionFollower::clearLostMark()
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const auto isLost = [this](const auto& points) {
        return points.find(m_markedName.line, m_markedName.point) == nullptr;
    };
    if ((m_marked == Points::Survey && isLost(manager.surveyPoints())) ||
        (m_marked == Points::Design && isLost(manager.designPoints()))) {
        PointHighlight::clear(m_host);
        m_marked = Points::None;
    }
}
