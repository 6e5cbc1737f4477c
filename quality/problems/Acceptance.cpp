#include "quality/problems/Acceptance.h"

#include "model/PointNumber.h"
#include "quality/problems/Fingerprint.h"
#include "quality/problems/ProblemList.h"

#include <functional>
#include <tuple>
#include <unordered_set>

namespace {

auto problemOf(const Acceptance& acceptance)
{
    return std::tie(acceptance.kind, acceptance.name.line, acceptance.name.point,
                    acceptance.isDesign, acceptance.fingerprint);
}

/// As the database has it.
std::string_view numberOf(const Problem& problem)
{
    return problem.isDesign ? problem.point.view() : writtenPointNumber(problem.point);
}

bool isGone(const Problem& problem, const DesignPoints& design, const SurveyPoints& survey)
{
    if (problem.point.empty())
        return false;
    return problem.isDesign ? design.find(problem.line, problem.point) == nullptr
                            : survey.find(problem.line, problem.point) == nullptr;
}

std::size_t hashOf(std::string_view kind, std::string_view line, std::string_view number)
{
    constexpr std::hash<std::string_view> kHash;
    return kHash(kind) + 31 * (kHash(line) + 31 * kHash(number));
}

} // namespace

bool Acceptance::Order::operator()(const Acceptance& first, const Acceptance& second) const
{
    return problemOf(first) < problemOf(second);
}

const Acceptance* Acceptances::find(const Acceptance& problem) const
{
    const auto found = m_all.find(problem);
    return found == m_all.end() ? nullptr : &*found;
}

void Acceptances::set(Acceptance acceptance)
{
    m_all.erase(acceptance);
    m_all.insert(std::move(acceptance));
}

void Acceptances::exchange(const std::vector<Acceptance>& problems, Acceptances& other) noexcept
{
    Set leaving;
    for (const Acceptance& problem : problems) {
        if (const auto found = m_all.find(problem); found != m_all.end())
            leaving.insert(m_all.extract(found));
    }
    m_all.merge(other.m_all);
    other.m_all = std::move(leaving);
}

std::optional<Acceptance> acceptanceOf(const Problem& problem, const DesignPoints& design,
                                       const SurveyPoints& survey)
{
    if (isGone(problem, design, survey))
        return std::nullopt;
    Acceptance acceptance;
    acceptance.kind = problem.kind->name;
    acceptance.isDesign = problem.isDesign;
    acceptance.name = {std::string(problem.line.view()), std::string(numberOf(problem))};
    acceptance.fingerprint = fingerprintOf(problem, design, survey);
    return acceptance;
}

void markAccepted(ProblemList& problems, const Acceptances& acceptances, const DesignPoints& design,
                  const SurveyPoints& survey)
{
    // A fingerprint takes long: most problems differ from all accepted ones by their names.
    std::unordered_set<std::size_t> named;
    for (const auto& [kind, isDesign, name, fingerprint, reason, person, time] : acceptances)
        named.insert(hashOf(kind, name.line, name.point));
    for (Problem& problem : problems) {
        problem.isAccepted = false;
        if (named.empty() ||
            !named.contains(hashOf(problem.kind->name, problem.line, numberOf(problem))))
            continue;
        const auto wanted = acceptanceOf(problem, design, survey);
        problem.isAccepted = wanted && acceptances.find(*wanted) != nullptr;
    }
}
