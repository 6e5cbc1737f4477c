#include "views/SelectionFollower.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/ILineList.h"
#include "project/IPointList.h"
#include "protocol/Events.h"

#include <QScopedValueRollback>

#include <cstring>
#include <string>

namespace {

/// Shows the point of these names in the windows of these names.
template <class Points>
void follow(IDesktopHost& host, const Points& points, const IDictionary& names,
            const char* pointList, const char* lineList)
{
    const std::string_view line = names.text("lineName");
    const std::string_view number = names.text("pointName");
    const auto* const point = points.find(line, number);
    if (point == nullptr)
        return;
    IWindowRegistry& windows = host.windows();
    if (auto* const list = windows.findAs<IPointList>(QLatin1String(pointList))) {
        windows.reveal(QLatin1String(pointList), QStringLiteral("DataMap"));
        list->followPoint(lum::toQString(line), lum::toQString(number));
    }
    if (auto* const list = windows.findAs<ILineList>(QLatin1String(lineList)))
        list->followLine(lum::toQString(line));
    PointHighlight::mark(host, *point);
}

} // namespace

SelectionFollower::SelectionFollower(IDesktopHost& host)
    : m_host(host),
      m_subscription(*this,
                     std::string(events::kSurveyPointSelected) + "," +
                         events::kDesignPointSelected + "," + events::kStationPointSelected,
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
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    if (std::strcmp(eventName, events::kSurveyPointSelected) == 0)
        follow(m_host, manager.surveyPoints(), names, "Survey Data List", "Survey Lines");
    else if (std::strcmp(eventName, events::kDesignPointSelected) == 0)
        follow(m_host, manager.designPoints(), names, "Design Data List", "Design Lines");
    else
        PointHighlight::markStation(m_host, names.integer("stationId", -1));
}
