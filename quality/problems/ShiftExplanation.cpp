#include "quality/problems/ShiftExplanation.h"

#include "quality/problems/GroupShift.h"
#include "quality/problems/IndexedPoints.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/problems/ShiftProblems.h"
#include "quality/ResurveyTolerances.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

/// A shift of the list of problems.
struct Explanation
{
    GroupShift shift;
    std::size_t place; ///< of its problem
};

using Explanations = std::vector<Explanation>;

bool isShift(const ProblemKind* kind)
{
    return kind == &kBaseShift || kind == &kPoleShift || kind == &kSurveyShift;
}

Explanations shiftsIn(const ProblemList& all)
{
    Explanations shifts;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (isShift(all[i].kind))
            shifts.push_back({GroupShift::fromText(all[i].detail), i});
    }
    return shifts;
}

/// What a result is off by the shifts of its groups.
struct Offset
{
    double eastM = 0;
    double northM = 0;
    double heightM = 0;
    double planeKnownM = 0;
    double heightKnownM = 0;
    Explanation* plane = nullptr; ///< the last of them
    Explanation* height = nullptr;

    [[nodiscard]] bool isAs(const Offset& other) const
    {
        return eastM == other.eastM && northM == other.northM && heightM == other.heightM;
    }
};

/// Says which shift a problem follows from, if it does.
class Explainer
{
public:
    Explainer(const FinderInput& input, Explanations& shifts)
        : m_input(input), m_shifts(shifts), m_zone(input.zone()),
          m_tolerances(ResurveyTolerances::from(input.parameters(), input.planeUnitM()))
    {
        for (const Judge& judge : kJudges)
            m_kinds.push_back(findProblemKind(judge.kind));
    }

    /// Null when it follows from none.
    [[nodiscard]] Explanation* causeOf(const Problem& problem)
    {
        const auto kind = std::ranges::find(m_kinds, problem.kind);
        const SurveyPoint* const point = kind == m_kinds.end() || problem.isDesign
                                             ? nullptr
                                             : m_input.survey().find(problem.line, problem.point);
        if (point == nullptr)
            return nullptr;
        const auto place = static_cast<std::size_t>(kind - m_kinds.begin());
        return (this->*kJudges[place].cause)(*point, problem);
    }

private:
    using Cause = Explanation* (Explainer::*)(const SurveyPoint&, const Problem&);
    struct Judge
    {
        const char* kind;
        Cause cause;
    };

    [[nodiscard]] Offset offsetOf(const SurveyPoint& point, bool ofPair = false);
    [[nodiscard]] Explanation* ofDistance(const SurveyPoint& point, const Problem& problem);
    [[nodiscard]] Explanation* ofHeight(const SurveyPoint& point, const Problem& problem);
    [[nodiscard]] Explanation* ofDeviation(const SurveyPoint& point, const Problem& problem);
    [[nodiscard]] Explanation* ofPair(const SurveyPoint& first, const Problem& problem);
    [[nodiscard]] Explanation* ofStep(const SurveyPoint& point, const Problem& problem);
    [[nodiscard]] Explanation* ofBorder(const SurveyPoint& point, const Problem& problem);

    static const std::array<Judge, 9> kJudges; // by the names of kinds

    const FinderInput& m_input;
    Explanations& m_shifts;
    basalt::LocalTimes m_zone;
    ResurveyTolerances m_tolerances;
    std::vector<const ProblemKind*> m_kinds; ///< in the order of `kJudges`
};

constexpr std::array<Explainer::Judge, 9> Explainer::kJudges{{
    {"too_far", &Explainer::ofDistance},
    {"height_off", &Explainer::ofHeight},
    {"across", &Explainer::ofDeviation},
    {"along", &Explainer::ofDeviation},
    {"resurvey_off", &Explainer::ofPair},
    {"repeat_off", &Explainer::ofPair},
    {"neighbour_height", &Explainer::ofStep},
    {"height_jump", &Explainer::ofStep},
    {"line_spacing", &Explainer::ofBorder},
}};

Offset Explainer::offsetOf(const SurveyPoint& point, bool ofPair)
{
    const std::int64_t day = point.dateTime == 0
                                 ? statistics::KeyValue::kNoNumber
                                 : statistics::dayOf(m_zone.clockSeconds(point.dateTime));
    Offset offset;
    for (Explanation& each : m_shifts) {
        const GroupShift& shift = each.shift;
        if ((shift.evidence == GroupShift::Evidence::Pairs && !ofPair) ||
            !shift.contains(day, point.baseStationId, point.instrumentSerialNumber))
            continue;
        if (shift.hasPlane()) {
            offset.eastM += shift.eastM;
            offset.northM += shift.northM;
            offset.planeKnownM = std::max(offset.planeKnownM, shift.planeKnownM);
            offset.plane = &each;
        }
        if (shift.hasHeight()) {
            offset.heightM += shift.heightM;
            offset.heightKnownM = std::max(offset.heightKnownM, shift.heightKnownM);
            offset.height = &each;
        }
    }
    return offset;
}

Explanation* Explainer::ofDistance(const SurveyPoint& point, const Problem& /*problem*/)
{
    const Offset offset = offsetOf(point);
    const double unitM = m_input.planeUnitM();
    const double left = std::hypot((point.east - point.designEast) * unitM - offset.eastM,
                                   (point.north - point.designNorth) * unitM - offset.northM);
    return left <= m_input.quality().designHorizontalM + offset.planeKnownM ? offset.plane
                                                                            : nullptr;
}

Explanation* Explainer::ofHeight(const SurveyPoint& point, const Problem& /*problem*/)
{
    const Offset offset = offsetOf(point);
    const double left = std::fabs(point.elevation - point.designElevation - offset.heightM);
    return left <= m_input.quality().designVerticalM + offset.heightKnownM ? offset.height
                                                                           : nullptr;
}

/// The direction of the line is not known here, so the whole shift may lie in the deviation.
Explanation* Explainer::ofDeviation(const SurveyPoint& point, const Problem& problem)
{
    const Offset offset = offsetOf(point);
    const double left = std::fabs(problem.value) - std::hypot(offset.eastM, offset.northM);
    return left <= problem.limit + offset.planeKnownM ? offset.plane : nullptr;
}

Explanation* Explainer::ofPair(const SurveyPoint& first, const Problem& problem)
{
    const SurveyPoint* const again = m_input.survey().find(problem.otherLine, problem.otherPoint);
    if (again == nullptr)
        return nullptr;
    const Offset before = offsetOf(first, true);
    const Offset now = offsetOf(*again, true);
    if (now.isAs(before))
        return nullptr;
    const double unitM = m_input.planeUnitM();
    const std::array left{(again->north - first.north) * unitM - now.northM + before.northM,
                          (again->east - first.east) * unitM - now.eastM + before.eastM,
                          again->elevation - first.elevation - now.heightM + before.heightM};
    const double planeM = std::max(now.planeKnownM, before.planeKnownM);
    const std::array knownM{planeM, planeM, std::max(now.heightKnownM, before.heightKnownM)};
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (!(std::fabs(left[i]) <= m_tolerances.metres[i] + knownM[i]))
            return nullptr;
    }
    for (Explanation* const each : {now.height, now.plane, before.height, before.plane}) {
        if (each != nullptr)
            return each;
    }
    return nullptr;
}

/// A step in height between results that are shifted differently.
Explanation* Explainer::ofStep(const SurveyPoint& point, const Problem& problem)
{
    constexpr std::size_t kNeighbours = 6;
    constexpr double kWithinM = 500;
    const auto explains = [&](double stepM) {
        return stepM * problem.value > 0 &&
               std::fabs(problem.value) <= std::fabs(stepM) + problem.limit;
    };
    const Offset own = offsetOf(point);
    const IndexedPoints<SurveyPoint>& results = m_input.indexedResults();
    std::vector<PointIndex::Found> near;
    results.index().nearest(placeOf(point, m_input.planeUnitM()), kNeighbours, kWithinM, near);
    for (const PointIndex::Found& found : near) {
        const Offset other = offsetOf(results[found.number]);
        if (explains(own.heightM - other.heightM))
            return own.height != nullptr ? own.height : other.height;
    }
    return nullptr;
}

/// The distance of two results that are shifted differently.
Explanation* Explainer::ofBorder(const SurveyPoint& point, const Problem& problem)
{
    const SurveyPoint* const other = m_input.survey().find(problem.otherLine, problem.otherPoint);
    if (other == nullptr)
        return nullptr;
    const Offset own = offsetOf(point);
    const Offset others = offsetOf(*other);
    if (own.eastM == others.eastM && own.northM == others.northM)
        return nullptr;
    const double unitM = m_input.planeUnitM();
    const double spacingM =
        std::hypot((point.east - other->east) * unitM - own.eastM + others.eastM,
                   (point.north - other->north) * unitM - own.northM + others.northM);
    if (!(std::fabs(spacingM - problem.second) <= std::fabs(problem.limit - problem.second)))
        return nullptr;
    return own.plane != nullptr ? own.plane : others.plane;
}

} // namespace

void explainByShifts(const FinderInput& input, ProblemList& all)
{
    Explanations shifts = shiftsIn(all);
    if (shifts.empty())
        return;
    Explainer explainer(input, shifts);
    std::vector<bool> isExplained(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        Explanation* const cause = explainer.causeOf(all[i]);
        isExplained[i] = cause != nullptr;
        if (cause != nullptr)
            ++all[cause->place].follows;
    }
    std::size_t next = 0;
    all.removeIf([&](const Problem& /*problem*/) { return isExplained[next++]; });
}
