#include "views/statistics/StatisticsLinks.h"

#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "project/IPointList.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "views/statistics/StatisticsData.h"

#include <QPolygonF>

#include <array>

namespace {

constexpr const char* kResults = "Survey Data List";
constexpr const char* kDesign = "Design Data List";
constexpr std::array kLists{kResults, kDesign};

} // namespace

IPointList* StatisticsLinks::list(const char* name) const
{
    return m_host.windows().findAs<IPointList>(QLatin1String(name));
}

void StatisticsLinks::showIn(IPointList& list, const Shown& shown, bool isOfDesign) const
{
    list.showOnly(shown.what,
                  isOfDesign && shown.design ? *shown.design : namesOf(shown.places, isOfDesign));
}

void StatisticsLinks::showOnly(const Shown& shown)
{
    m_shown = shown.what;
    for (const char* const name : kLists) {
        if (IPointList* const found = list(name))
            showIn(*found, shown, name == kDesign);
    }
    mark(shown.places);
}

void StatisticsLinks::renew(const Shown& shown)
{
    m_shown = shown.what;
    for (const char* const name : kLists) {
        if (IPointList* const found = list(name); found != nullptr && found->isShowingOnly())
            showIn(*found, shown, name == kDesign);
    }
}

void StatisticsLinks::showAllAgain()
{
    if (m_shown.isEmpty())
        return;
    m_shown.clear();
    for (const char* const name : kLists) {
        if (IPointList* const found = list(name))
            found->showOthersAgain();
    }
    PointHighlight::clear(m_host);
}

QString StatisticsLinks::shown() const
{
    for (const char* const name : kLists) {
        const IPointList* const found = list(name);
        if (found != nullptr && found->isShowingOnly())
            return m_shown;
    }
    return {};
}

std::vector<PointName> StatisticsLinks::namesOf(const Places& places, bool isOfStaked) const
{
    std::vector<PointName> names;
    names.reserve(places.size());
    for (const std::uint32_t place : places) {
        const statistics::Observation& result = m_data.all().result(place);
        if (!isOfStaked || result.kind == statistics::ResultKind::Staked)
            names.push_back({result.point->lineNumber, result.point->pointNumber});
    }
    return names;
}

void StatisticsLinks::mark(const Places& places) const
{
    const ICoordTransformHelper& helper = m_host.coordTransformHelper();
    QPolygonF positions;
    positions.reserve(static_cast<int>(places.size()));
    for (const std::uint32_t place : places) {
        const SurveyPoint& point = *m_data.all().result(place).point;
        positions << helper.projectToMap(point.north, point.east);
    }
    PointHighlight::markGroup(m_host, positions);
}

void StatisticsLinks::goTo(std::uint32_t place) const
{
    const SurveyPoint& result = *m_data.all().result(place).point;
    const QString line = lum::toQString(result.lineNumber);
    const QString point = lum::toQString(result.pointNumber);
    if (IPointList* const results = list(kResults))
        results->selectPoint(line, point);
    else
        m_host.eventManager().publish(events::kSurveyPointSelected,
                                      payload::selectedPoint(point, line).constData(), 0);
}

void StatisticsLinks::zoomTo(std::uint32_t place) const
{
    goTo(place);
    PointHighlight::zoomTo(m_host, *m_data.all().result(place).point);
}
