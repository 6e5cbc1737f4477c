#include "samples/DemoSurvey.h"

#include "basalt_utilities/Numbers.h"
#include "model/CodeTables.h"
#include "model/PointNumber.h"
#include "samples/Crew.h"
#include "samples/Remeasuring.h"
#include "samples/ResultCompleter.h"
#include "samples/Spoiling.h"
#include "samples/Terrain.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <tuple>

namespace demo {

namespace {

constexpr std::size_t kForgotten = 8; ///< points that the crews missed
constexpr std::size_t kNoPermit = 12; ///< points at the end of the last receiver line
constexpr std::size_t kPointsALine = 100;

constexpr Equipment kEquipment[] = {
    {"Chen Yu", "RV-620", "620-01873", 1.8}, // source points
    {"Ma Lin", "RV-610", "610-00417", 2.0},  // receiver points
};

/// Makes the survey: its public functions are the steps, to be called in their order.
class Making
{
public:
    Making(std::uint64_t seed, ICoordTransform& transform);

    void chooseForgotten();
    void stakeAll();
    void spoilResults();
    void remeasure();
    [[nodiscard]] DemoSurvey finished();

private:
    struct Result
    {
        std::size_t design; ///< index of its design point
        SurveyPoint point;
    };

    void visit(std::size_t index);
    void leaveOut(const DesignPoint& design, const char* why);
    void stakeAside(std::size_t index, Obstacle obstacle, const LocalPlace& place);
    Crew& crewOf(const DesignPoint& design) { return m_crews[design.type == kReceiver ? 1 : 0]; }
    std::vector<Result> takeGood(std::size_t count);
    SurveyPoint measureAgain(const Result& first);
    void note(const char* kind, const SurveyPoint& point, std::string what);

    Random m_random;
    ResultCompleter m_completer;
    std::array<Crew, 2> m_crews;
    std::vector<DesignPoint> m_design;
    std::vector<bool> m_isForgotten; ///< as long as the design
    std::vector<Result> m_good;      ///< results without a fault
    std::vector<SurveyPoint> m_done; ///< all other results
    std::vector<PlantedFault> m_faults;
};

Making::Making(std::uint64_t seed, ICoordTransform& transform)
    : m_random(seed), m_completer(transform), m_crews{Crew(kEquipment[0], {100, -60}, m_random),
                                                      Crew(kEquipment[1], {0, 0}, m_random)},
      m_design(designGrid()), m_isForgotten(m_design.size())
{
}

LocalPlace placeOf(const DesignPoint& design)
{
    return toGrid({design.north, design.east});
}

/// The indexes of the design points in the order in which they are staked: up one line, down the
/// next.
std::vector<std::size_t> wayOfCrews(std::size_t count)
{
    std::vector<std::size_t> way(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t line = i / kPointsALine;
        const std::size_t point = i % kPointsALine;
        way[i] = line * kPointsALine + (line % 2 == 0 ? point : kPointsALine - 1 - point);
    }
    return way;
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

void Making::stakeAll()
{
    const std::vector<std::size_t> way = wayOfCrews(m_design.size());
    const std::size_t receivers = m_design.size() / 2; // the first half of the design
    for (std::size_t i = 0; i < way.size(); ++i) {
        const DesignPoint& design = m_design[way[i]];
        if (i < receivers && i + kNoPermit >= receivers)
            leaveOut(design, "the farmer lets nobody in");
        else if (m_isForgotten[way[i]])
            leaveOut(design, "walked past");
        else
            visit(way[i]);
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
    m_good.push_back({index, crewOf(design).measure(design, stake)});
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
        crewOf(design).measure(design, moved(place, design.type, skid->rightM, skid->alongM));
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
std::vector<Making::Result> Making::takeGood(std::size_t count)
{
    std::vector<Result> taken;
    while (taken.size() < count) {
        const auto chosen =
            m_good.begin() + static_cast<std::ptrdiff_t>(m_random.index(m_good.size()));
        taken.push_back(std::move(*chosen));
        m_good.erase(chosen);
    }
    std::sort(taken.begin(), taken.end(),
              [](const Result& a, const Result& b) { return a.design < b.design; });
    return taken;
}

void Making::note(const char* kind, const SurveyPoint& point, std::string what)
{
    m_faults.push_back({kind, point.lineNumber, point.pointNumber, std::move(what)});
}

void Making::spoilResults()
{
    for (const Spoiling& spoiling : spoilings()) {
        for (Result& result : takeGood(spoiling.count)) {
            const std::string what = spoiling.spoil(result.point, m_random);
            note(spoiling.kind, result.point, what);
            m_done.push_back(std::move(result.point));
        }
    }
}

/// Measures a stake once more, a few millimetres beside the first result.
SurveyPoint Making::measureAgain(const Result& first)
{
    const DesignPoint& design = m_design[first.design];
    SurveyPoint again =
        crewOf(design).measure(design, toGrid({first.point.north, first.point.east}));
    again.north = first.point.north + m_random.bell(0.007);
    again.east = first.point.east + m_random.bell(0.007);
    again.elevation = first.point.elevation + m_random.bell(0.008);
    return again;
}

void Making::remeasure()
{
    for (const Remeasuring& kind : remeasurings()) {
        for (Result& first : takeGood(kind.points)) {
            for (int i = 0; i < kind.times; ++i) {
                SurveyPoint again = measureAgain(first);
                const std::string what = kind.change(again, first.point, m_random);
                note(kind.kind, again, what);
                m_done.push_back(std::move(again));
            }
            m_done.push_back(std::move(first.point));
        }
    }
}

DemoSurvey Making::finished()
{
    for (Result& result : m_good)
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

DemoSurvey makeDemoSurvey(std::uint64_t seed, ICoordTransform& transform)
{
    Making making(seed, transform);
    making.chooseForgotten();
    making.stakeAll();
    making.spoilResults();
    making.remeasure();
    return making.finished();
}

} // namespace demo
