#include "samples/DemoSurvey.h"

#include "basalt_utilities/Numbers.h"
#include "model/CodeTables.h"
#include "model/PointNumber.h"
#include "samples/CheckShots.h"
#include "samples/Crew.h"
#include "samples/DayFaults.h"
#include "samples/DesignFaults.h"
#include "samples/Misnaming.h"
#include "samples/Remeasuring.h"
#include "samples/ResultCompleter.h"
#include "samples/Spoiling.h"
#include "samples/Terrain.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>
#include <tuple>

namespace demo {

namespace {

constexpr std::size_t kForgotten = 8; ///< points that the crews missed
constexpr std::size_t kNoPermit = 12; ///< points at the end of the last receiver line

constexpr Equipment kEquipment[] = {
    {"Chen Yu", "RV-620", "620-01873", 1.8}, // source points
    {"Ma Lin", "RV-610", "610-00417", 2.0},  // receiver points
};

/// Makes the survey: its public functions are the steps, to be called in their order.
class Making
{
public:
    Making(std::uint64_t seed, ICoordTransform& transform, DemoPlan&& plan);

    void chooseForgotten();
    void spoilDesign(std::uint64_t seed);
    void stakeAll();
    void spoilDays();
    void spoilResults();
    void remeasure();
    void spoilNames();
    [[nodiscard]] DemoSurvey finished();

private:
    void visit(std::size_t index);
    void leaveOut(const DesignPoint& design, const char* why);
    void stakeAside(std::size_t index, Obstacle obstacle, const LocalPlace& place);
    [[nodiscard]] Obstacle obstacleAt(const LocalPlace& place) const
    {
        return m_plan.hasObstacles ? demo::obstacleAt(place) : Obstacle::None;
    }
    Crew& crewOf(int type) { return m_crews[type == kReceiver ? 1 : 0]; }
    std::vector<StakedPoint> takeGood(std::size_t count);
    std::optional<StakedPoint> takeGoodOf(const Evening& evening);
    void leaveOutEvening(CheckShots& shots);
    void planShot(CheckShots& shots, const Remeasuring& kind);
    void work(Evening& evening, std::int64_t firstDay);
    SurveyPoint measureAgain(const StakedPoint& first);
    void note(const char* kind, const SurveyPoint& point, std::string what);

    Random m_random;
    ResultCompleter m_completer;
    std::array<Crew, 2> m_crews;
    DemoPlan m_plan;
    std::vector<DesignPoint>& m_design;
    std::vector<std::size_t> m_way;  ///< places in the design
    std::vector<bool> m_isForgotten; ///< as long as the design
    std::vector<bool> m_isTouched;   ///< by a fault of the design
    std::vector<StakedPoint> m_good; ///< results without a fault
    std::vector<SurveyPoint> m_done; ///< all other results
    std::vector<PlantedFault> m_faults;
};

/// The places of the design points in the order in which they are staked: up one line, down the
/// next.
std::vector<std::size_t> wayOfCrews(const std::vector<DesignPoint>& design)
{
    std::vector<std::size_t> way(design.size());
    std::iota(way.begin(), way.end(), std::size_t(0));
    bool isUp = true;
    for (auto first = way.begin(); first != way.end(); isUp = !isUp) {
        const auto last = std::find_if(first, way.end(), [&](std::size_t place) {
            return design[place].lineNumber != design[*first].lineNumber;
        });
        if (!isUp)
            std::reverse(first, last);
        first = last;
    }
    return way;
}

Making::Making(std::uint64_t seed, ICoordTransform& transform, DemoPlan&& plan)
    : m_random(seed), m_completer(transform), m_crews{Crew(kEquipment[0], {100, -60}, m_random),
                                                      Crew(kEquipment[1], {0, 0}, m_random)},
      m_plan(std::move(plan)), m_design(m_plan.design), m_way(wayOfCrews(m_design)),
      m_isForgotten(m_design.size()), m_isTouched(m_design.size())
{
}

LocalPlace placeOf(const DesignPoint& design)
{
    return toGrid({design.north, design.east});
}

void Making::chooseForgotten()
{
    std::size_t chosen = 0;
    while (chosen < kForgotten) {
        const std::size_t index = m_random.index(m_design.size());
        if (m_isForgotten[index] || obstacleAt(placeOf(m_design[index])) != Obstacle::None)
            continue;
        m_isForgotten[index] = true;
        ++chosen;
    }
}

void Making::spoilDesign(std::uint64_t seed)
{
    DesignFaults planted = plantDesignFaults(m_design, seed);
    m_isTouched = std::move(planted.isTouched);
    m_faults = std::move(planted.faults);
}

void Making::stakeAll()
{
    const auto receivers = static_cast<std::size_t>(
        std::ranges::count(m_design, kReceiver, &DesignPoint::type)); // the first of the design
    for (std::size_t i = 0; i < m_way.size(); ++i) {
        const DesignPoint& design = m_design[m_way[i]];
        if (m_plan.hasFaults && i < receivers && i + kNoPermit >= receivers)
            leaveOut(design, "the farmer lets nobody in");
        else if (m_isForgotten[m_way[i]])
            leaveOut(design, "walked past");
        else
            visit(m_way[i]);
    }
}

void Making::visit(std::size_t index)
{
    DesignPoint& design = m_design[index];
    const LocalPlace place = placeOf(design);
    const LocalPlace stake{place.x + m_random.bell(0.1), place.y + m_random.bell(0.1)};
    const Obstacle obstacle = obstacleAt(place);
    if (obstacle != Obstacle::None)
        return stakeAside(index, obstacle, stake);
    design.status = 1;
    m_good.push_back({index, crewOf(design.type).measure(design, stake)});
}

void Making::leaveOut(const DesignPoint& design, const char* why)
{
    m_faults.push_back({kMissing, design.lineNumber, design.pointNumber, why});
}

void Making::stakeAside(std::size_t index, Obstacle obstacle, const LocalPlace& place)
{
    DesignPoint& design = m_design[index];
    const std::optional<Skid> skid = shortestSkid(placeOf(design), design.type);
    if (!skid)
        return leaveOut(design, "in the river with no bank near enough");
    design.status = 1;
    SurveyPoint point =
        crewOf(design.type).measure(design, moved(place, design.type, skid->rightM, skid->alongM));
    const double length = skid->rightM + skid->alongM; // one of the two is 0
    const char* const across = length > 0 ? " m right" : " m left";
    const char* const along = length > 0 ? " m forward" : " m back";
    point.obstacle = obstacleText(static_cast<int>(obstacle)).toStdString();
    point.remarks =
        basalt::formatFixed(std::fabs(length), 1).append(skid->rightM != 0 ? across : along);
    note(kSkid, point, point.remarks + " for " + point.obstacle);
    m_done.push_back(std::move(point));
}

/// Takes random results out of the good ones, in the order in which they were measured.
std::vector<StakedPoint> Making::takeGood(std::size_t count)
{
    std::vector<StakedPoint> taken;
    while (taken.size() < count) {
        const auto chosen =
            m_good.begin() + static_cast<std::ptrdiff_t>(m_random.index(m_good.size()));
        taken.push_back(std::move(*chosen));
        m_good.erase(chosen);
    }
    std::sort(taken.begin(), taken.end(),
              [](const StakedPoint& a, const StakedPoint& b) { return a.design < b.design; });
    return taken;
}

void Making::note(const char* kind, const SurveyPoint& point, std::string what)
{
    m_faults.push_back({kind, point.lineNumber, point.pointNumber, std::move(what)});
}

void Making::spoilDays()
{
    std::vector<SurveyPoint*> all;
    for (StakedPoint& result : m_good)
        all.push_back(&result.point);
    for (SurveyPoint& result : m_done)
        all.push_back(&result);
    for (PlantedFault& fault : plantDayFaults(all))
        m_faults.push_back(std::move(fault));
}

void Making::spoilResults()
{
    for (const Spoiling& spoiling : spoilings()) {
        for (StakedPoint& result : takeGood(spoiling.count)) {
            const std::string what = spoiling.spoil(result.point, m_random);
            note(spoiling.kind, result.point, what);
            m_done.push_back(std::move(result.point));
        }
    }
}

/// Measures a stake once more, a few millimetres beside the first result. Base and pole are as they
/// were that day.
SurveyPoint Making::measureAgain(const StakedPoint& first)
{
    const DesignPoint& design = m_design[first.design];
    SurveyPoint again =
        crewOf(design.type).measure(design, toGrid({first.point.north, first.point.east}));
    again.north = first.point.north + m_random.bell(0.007);
    again.east = first.point.east + m_random.bell(0.007);
    again.elevation = first.point.elevation + m_random.bell(0.008);
    again.antennaHeight = first.point.antennaHeight;
    again.referenceAltitude = first.point.referenceAltitude;
    return again;
}

/// A random good result of the crew and the day.
std::optional<StakedPoint> Making::takeGoodOf(const Evening& evening)
{
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < m_good.size(); ++i) {
        const SurveyPoint& point = m_good[i].point;
        if (point.pointMark == evening.type && dayOf(point) == evening.day)
            places.push_back(i);
    }
    if (places.empty())
        return std::nullopt;
    const std::size_t place = places[m_random.index(places.size())];
    std::optional<StakedPoint> taken = std::move(m_good[place]);
    m_good.erase(m_good.begin() + static_cast<std::ptrdiff_t>(place));
    return taken;
}

/// On one evening a crew measures nothing again.
void Making::leaveOutEvening(CheckShots& shots)
{
    constexpr std::size_t kFewResults = 100;
    for (;;) {
        Evening& evening = shots.evenings()[m_random.index(shots.evenings().size())];
        if (evening.results < kFewResults)
            continue;
        evening.isLeftOut = true;
        const char* const surveyor = kEquipment[evening.type == kReceiver ? 1 : 0].surveyor;
        m_faults.push_back({"few check shots",
                            {},
                            {},
                            surveyor + (" on " + dayText(evening.day)) + ": none of " +
                                std::to_string(evening.wanted())});
        return;
    }
}

void Making::planShot(CheckShots& shots, const Remeasuring& kind)
{
    Evening* const evening = shots.next();
    if (evening == nullptr)
        return;
    if (auto first = takeGoodOf(*evening))
        evening->shots.push_back({&kind, std::move(*first)});
    else
        evening->isLeftOut = true; // nothing is left
}

void Making::work(Evening& evening, std::int64_t firstDay)
{
    std::ranges::stable_sort(evening.shots, {},
                             [](const Evening::Shot& shot) { return shot.first.design; });
    crewOf(evening.type).workLateOn(static_cast<int>(evening.day - firstDay));
    for (auto& [kind, first] : evening.shots) {
        for (int i = 0; i < kind->times; ++i) {
            SurveyPoint again = measureAgain(first);
            const std::string what = kind->change(again, first.point, m_random);
            note(kind->kind, again, what);
            m_done.push_back(std::move(again));
        }
        m_done.push_back(std::move(first.point));
    }
}

void Making::remeasure()
{
    CheckShots shots;
    for (const StakedPoint& result : m_good)
        shots.count(result.point);
    for (const SurveyPoint& result : m_done)
        shots.count(result);
    if (m_plan.hasFaults) {
        leaveOutEvening(shots);
        for (const Remeasuring& kind : remeasurings()) {
            for (std::size_t i = 0; i < kind.points; ++i)
                planShot(shots, kind);
        }
    }
    while (shots.next() != nullptr)
        planShot(shots, goodResurvey());
    std::ranges::stable_sort(shots.evenings(), {}, &Evening::day);
    const std::int64_t firstDay = shots.evenings().front().day;
    for (Evening& evening : shots.evenings())
        work(evening, firstDay);
}

void Making::spoilNames()
{
    for (SurveyPoint& result :
         misname({m_design, m_isTouched, m_isForgotten}, m_good, m_faults, m_random))
        m_done.push_back(std::move(result));
}

DemoSurvey Making::finished()
{
    for (StakedPoint& result : m_good)
        m_done.push_back(std::move(result.point));
    DemoSurvey demo;
    SurveyPointFiler filer(demo.survey);
    for (SurveyPoint& point : m_done) {
        m_completer.complete(point);
        filer.file(std::move(point));
    }
    for (DesignPoint& point : m_design)
        demo.design.set(std::move(point));
    std::sort(m_faults.begin(), m_faults.end(), [](const auto& a, const auto& b) {
        return std::tie(a.kind, a.line, a.point) < std::tie(b.kind, b.line, b.point);
    });
    demo.faults = std::move(m_faults);
    return demo;
}

} // namespace

DemoSurvey makeDemoSurvey(std::uint64_t seed, ICoordTransform& transform, DemoPlan plan)
{
    const bool hasFaults = plan.hasFaults;
    Making making(seed, transform, std::move(plan));
    if (hasFaults) {
        making.chooseForgotten();
        making.spoilDesign(seed);
    }
    making.stakeAll();
    if (hasFaults) {
        making.spoilDays();
        making.spoilResults();
    }
    making.remeasure();
    if (hasFaults)
        making.spoilNames();
    return making.finished();
}

} // namespace demo
