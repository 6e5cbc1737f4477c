#include "quality/problems/NameExplanation.h"

#include "quality/MeasuredPoint.h"
#include "quality/problems/IndexedPoints.h"
#include "quality/problems/NameProblems.h"
#include "quality/ResurveyTolerances.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace {

/// A result under the name that is proposed for it.
struct Renamed
{
    Problem* problem = nullptr; ///< that proposes it
    const SurveyPoint* result = nullptr;
    const DesignPoint* point = nullptr; ///< that it measures then
};

class NameExplainer
{
public:
    NameExplainer(const FinderInput& input, ProblemList& all)
        : m_input(input),
          m_tolerances(ResurveyTolerances::from(input.parameters(), input.planeUnitM()))
    {
        for (Problem& problem : all) {
            for (const Renaming& renaming : proposalOf(problem))
                addRenaming(problem, renaming);
        }
        for (const Judge& judge : kJudges)
            m_kinds.push_back(findProblemKind(judge.kind));
    }

    [[nodiscard]] bool isEmpty() const { return m_renamed.empty(); }

    /// The proposal that mends a problem; null when none does.
    [[nodiscard]] Problem* causeOf(const Problem& problem) const
    {
        const auto kind = std::ranges::find(m_kinds, problem.kind);
        return kind == m_kinds.end()
                   ? nullptr
                   : (this->*kJudges[static_cast<std::size_t>(kind - m_kinds.begin())].cause)(
                         problem);
    }

private:
    using Cause = Problem* (NameExplainer::*)(const Problem&) const;
    struct Judge
    {
        const char* kind;
        Cause cause;
    };

    void addRenaming(Problem& problem, const Renaming& renaming);
    [[nodiscard]] const Renamed* renamed(std::string_view line, std::string_view point) const;
    [[nodiscard]] const Renamed* takerOf(std::string_view line, std::string_view point) const;
    [[nodiscard]] const SurveyPoint* holderOf(const DesignPoint& point) const;
    [[nodiscard]] bool areAlike(const SurveyPoint& first, const SurveyPoint& again) const;

    [[nodiscard]] Problem* ofPlace(const Problem& problem) const;
    [[nodiscard]] Problem* ofHeight(const Problem& problem) const;
    [[nodiscard]] Problem* ofMissing(const Problem& problem) const;
    [[nodiscard]] Problem* ofAgain(const Problem& problem) const;
    [[nodiscard]] Problem* ofPair(const Problem& problem) const;

    static const std::array<Judge, 9> kJudges; // by the names of kinds

    const FinderInput& m_input;
    ResurveyTolerances m_tolerances;
    std::vector<const ProblemKind*> m_kinds; ///< in the order of `kJudges`
    std::unordered_map<const SurveyPoint*, Renamed> m_renamed;
    /// Results that get the name of a design point, by its number: many points may be missing.
    std::unordered_multimap<std::string_view, Renamed> m_taken;
};

constexpr std::array<NameExplainer::Judge, 9> NameExplainer::kJudges{{
    {"too_far", &NameExplainer::ofPlace},
    {"across", &NameExplainer::ofPlace},
    {"along", &NameExplainer::ofPlace},
    {"no_design", &NameExplainer::ofPlace},
    {"height_off", &NameExplainer::ofHeight},
    {"missing", &NameExplainer::ofMissing},
    {"resurvey_alone", &NameExplainer::ofAgain},
    {"repeat_off", &NameExplainer::ofAgain},
    {"resurvey_off", &NameExplainer::ofPair},
}};

void NameExplainer::addRenaming(Problem& problem, const Renaming& renaming)
{
    const auto& [line, number] = renaming.to;
    const SurveyPoint* const result =
        m_input.survey().find(renaming.from.line, renaming.from.point);
    const DesignPoint* const point =
        measuredPoint(m_input.design(), line, number, m_input.resurveyCode());
    if (result == nullptr || point == nullptr)
        return;
    const Renamed renamed{&problem, result, point};
    m_renamed.emplace(result, renamed);
    if (point->pointNumber == number)
        m_taken.emplace(point->pointNumber, renamed);
}

const Renamed* NameExplainer::renamed(std::string_view line, std::string_view point) const
{
    const SurveyPoint* const result = m_input.survey().find(line, point);
    const auto found = m_renamed.find(result);
    return found == m_renamed.end() ? nullptr : &found->second;
}

const Renamed* NameExplainer::takerOf(std::string_view line, std::string_view point) const
{
    const auto [first, end] = m_taken.equal_range(point);
    const auto found = std::find_if(
        first, end, [&](const auto& each) { return each.second.point->lineNumber == line; });
    return found == end ? nullptr : &found->second;
}

/// The result that then has the name of a design point.
const SurveyPoint* NameExplainer::holderOf(const DesignPoint& point) const
{
    if (const Renamed* const taker = takerOf(point.lineNumber, point.pointNumber))
        return taker->result;
    const SurveyPoint* const result = m_input.survey().find(point.lineNumber, point.pointNumber);
    return m_renamed.contains(result) ? nullptr : result;
}

bool NameExplainer::areAlike(const SurveyPoint& first, const SurveyPoint& again) const
{
    const auto exceeded = m_tolerances.exceededBy(
        {again.north - first.north, again.east - first.east, again.elevation - first.elevation});
    return std::ranges::find(exceeded, true) == exceeded.end();
}

/// What lies within its limit from the point lies so along and across its line, too.
Problem* NameExplainer::ofPlace(const Problem& problem) const
{
    const Renamed* const found = renamed(problem.line, problem.point);
    if (found == nullptr)
        return nullptr;
    const double limitM =
        std::isnan(problem.limit) ? m_input.quality().designHorizontalM : problem.limit;
    const double unitM = m_input.planeUnitM();
    return distanceM(placeOf(*found->result, unitM), placeOf(*found->point, unitM)) <= limitM
               ? found->problem
               : nullptr;
}

Problem* NameExplainer::ofHeight(const Problem& problem) const
{
    const Renamed* const found = renamed(problem.line, problem.point);
    return found != nullptr &&
                   std::fabs(found->result->elevation - found->point->elevation) <= problem.limit
               ? found->problem
               : nullptr;
}

Problem* NameExplainer::ofMissing(const Problem& problem) const
{
    const Renamed* const taker = takerOf(problem.line, problem.point);
    return taker == nullptr ? nullptr : taker->problem;
}

/// A resurvey or check point under a wrong name.
Problem* NameExplainer::ofAgain(const Problem& problem) const
{
    const Renamed* const again = renamed(problem.line, problem.point);
    const SurveyPoint* const first = again == nullptr ? nullptr : holderOf(*again->point);
    return first != nullptr && areAlike(*first, *again->result) ? again->problem : nullptr;
}

/// Of its two results the first may have the wrong name, or the other one.
Problem* NameExplainer::ofPair(const Problem& problem) const
{
    if (const Renamed* const again = renamed(problem.otherLine, problem.otherPoint)) {
        const SurveyPoint* const first = holderOf(*again->point);
        return first != nullptr && areAlike(*first, *again->result) ? again->problem : nullptr;
    }
    const Renamed* const gone = renamed(problem.line, problem.point);
    const DesignPoint* const point = m_input.design().find(problem.line, problem.point);
    const SurveyPoint* const again = m_input.survey().find(problem.otherLine, problem.otherPoint);
    const SurveyPoint* const first = point == nullptr ? nullptr : holderOf(*point);
    return gone != nullptr && again != nullptr && first != nullptr && areAlike(*first, *again)
               ? gone->problem
               : nullptr;
}

} // namespace

void explainByNames(const FinderInput& input, ProblemList& all)
{
    const NameExplainer explainer(input, all);
    if (explainer.isEmpty())
        return;
    std::vector<bool> isExplained(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        Problem* const cause = explainer.causeOf(all[i]);
        isExplained[i] = cause != nullptr;
        if (cause != nullptr)
            ++cause->follows;
    }
    std::size_t next = 0;
    all.removeIf([&](const Problem& /*problem*/) { return isExplained[next++]; });
}
