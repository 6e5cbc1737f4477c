#include "quality/problems/GroupShifts.h"

#include "quality/problems/ShiftCause.h"
#include "quality/problems/ShiftUnion.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <tuple>
#include <unordered_map>

namespace {

using statistics::GroupKey;
using Evidence = GroupShift::Evidence;

constexpr std::size_t kLeastPairs = 3;

/// A point measured twice, seen from one of its results.
struct Difference
{
    std::uint32_t place; ///< of that result
    double eastM;        ///< that result minus the other one
    double northM;
    double heightM;
};

class ShiftSearch
{
public:
    ShiftSearch(const statistics::SurveySample& sample, const ShiftLimits& limits)
        : m_sample(sample), m_limits(limits), m_bases(sample, GroupKey::Base),
          m_rovers(sample, GroupKey::Rover), m_design(sample, m_bases, m_rovers, limits),
          m_isShifted(sample.results.size())
    {
    }

    [[nodiscard]] std::vector<GroupShift> run(const std::vector<statistics::MeasuredPair>& pairs)
    {
        searchDesign();
        searchPairs(pairs);
        return std::move(m_found);
    }

private:
    void searchDesign();
    [[nodiscard]] std::vector<ComparedGroup> comparedGroups() const;

    void searchPairs(const std::vector<statistics::MeasuredPair>& pairs);
    [[nodiscard]] std::vector<std::pair<std::uint32_t, std::uint32_t>>
    placesOf(const std::vector<statistics::MeasuredPair>& pairs) const;
    [[nodiscard]] std::vector<ShiftCandidate>
    pairCandidates(const ShiftGroups& groups,
                   const std::vector<statistics::MeasuredPair>& pairs) const;
    [[nodiscard]] std::vector<const ShiftCandidate*>
    surelyWrong(const std::vector<const ShiftCandidate*>& worstFirst) const;
    [[nodiscard]] ShiftCandidate judgeByPairs(const ShiftGroup& group,
                                              const std::vector<Difference>& differences) const;

    void accept(const ShiftCandidate& candidate, Evidence evidence);
    [[nodiscard]] const std::string& nameOf(const ShiftGroup& group) const
    {
        const std::uint32_t value = m_sample.results[group.members.front()].key(group.key);
        return m_sample.valuesOf(group.key)[value].text;
    }

    const statistics::SurveySample& m_sample;
    const ShiftLimits m_limits;
    const ShiftGroups m_bases;
    const ShiftGroups m_rovers;
    const ShiftDesign m_design;
    std::vector<bool> m_isShifted; ///< for each result, whether one of its groups is
    std::vector<std::pair<std::uint32_t, std::uint32_t>> m_pairPlaces; ///< again, first
    std::vector<GroupShift> m_found;
};

// --- against the design ---

std::vector<ComparedGroup> ShiftSearch::comparedGroups() const
{
    std::vector<ComparedGroup> compared;
    for (const ShiftGroups* const groups : {&m_bases, &m_rovers}) {
        for (const ShiftGroup& group : groups->groups) {
            if (m_design.isComparable(group))
                compared.push_back({group.key == GroupKey::Rover, group.day, nameOf(group)});
        }
    }
    return compared;
}

/// When all bases are off alike, no pole is to be blamed for it, unless there is one alone.
void ShiftSearch::searchDesign()
{
    for (const ShiftCandidate& candidate : m_design.basesAlone())
        accept(candidate, Evidence::Design);
    if (m_sample.valuesOf(GroupKey::Rover).size() == 1 || m_found.empty() ||
        !areAllAlike(m_found, comparedGroups())) {
        m_found.clear();
        m_isShifted.assign(m_isShifted.size(), false);
        for (const ShiftCandidate& candidate : m_design.basesAndPoles())
            accept(candidate, Evidence::Design);
    }
    if (!m_found.empty())
        uniteShifts(m_found, comparedGroups());
}

// --- points measured twice ---

std::vector<std::pair<std::uint32_t, std::uint32_t>>
ShiftSearch::placesOf(const std::vector<statistics::MeasuredPair>& pairs) const
{
    std::unordered_map<const SurveyPoint*, std::uint32_t> places;
    for (const statistics::MeasuredPair& pair : pairs)
        places[pair.first] = places[pair.again] = 0;
    for (std::uint32_t i = 0; i < m_sample.results.size(); ++i) {
        if (const auto found = places.find(m_sample.results[i].point); found != places.end())
            found->second = i;
    }
    std::vector<std::pair<std::uint32_t, std::uint32_t>> found;
    found.reserve(pairs.size());
    for (const statistics::MeasuredPair& pair : pairs)
        found.emplace_back(places.at(pair.again), places.at(pair.first));
    return found;
}

ShiftCandidate ShiftSearch::judgeByPairs(const ShiftGroup& group,
                                         const std::vector<Difference>& differences) const
{
    std::vector<double> east;
    std::vector<double> north;
    std::vector<double> heights;
    for (const Difference& each : differences) {
        east.push_back(each.eastM);
        north.push_back(each.northM);
        heights.push_back(each.heightM);
    }
    ShiftCandidate candidate{.group = &group, .results = differences.size()};
    candidate.height = SteadyOffset::ofHeights(heights, {kLeastPairs, m_limits.heightM});
    if (group.key == GroupKey::Base)
        candidate.plane = SteadyOffset::ofPlane(east, north, {kLeastPairs, m_limits.planeM});
    if (candidate.height.isFound && m_design.agreesInHeight(group))
        candidate.height.isFound = false;
    for (const Difference& each : differences) {
        if (candidate.isSharedBy(each.eastM, each.northM, each.heightM))
            candidate.shared.push_back(each.place);
    }
    std::ranges::sort(candidate.shared);
    return candidate;
}

std::vector<ShiftCandidate>
ShiftSearch::pairCandidates(const ShiftGroups& groups,
                            const std::vector<statistics::MeasuredPair>& pairs) const
{
    std::map<std::uint32_t, std::vector<Difference>> differences; // by group
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto [again, first] = m_pairPlaces[i];
        const std::uint32_t ofAgain = groups.groupOf[again];
        const std::uint32_t ofFirst = groups.groupOf[first];
        const Difference change{again, pairs[i].eastM, pairs[i].northM, pairs[i].heightM};
        if (ofAgain == ofFirst || m_isShifted[again] || m_isShifted[first] ||
            !std::isfinite(change.eastM + change.northM + change.heightM))
            continue;
        differences[ofAgain].push_back(change);
        differences[ofFirst].push_back({first, -change.eastM, -change.northM, -change.heightM});
    }
    std::vector<ShiftCandidate> candidates;
    for (const auto& [number, all] : differences) {
        const ShiftGroup& group = groups.groups[number];
        if (ShiftCandidate candidate = judgeByPairs(group, all); candidate.isShifted())
            candidates.push_back(std::move(candidate));
    }
    return candidates;
}

/// What disagrees with a worse one may be right when that one is left out: only those that have no
/// pair with a worse one are wrong for sure.
std::vector<const ShiftCandidate*>
ShiftSearch::surelyWrong(const std::vector<const ShiftCandidate*>& worstFirst) const
{
    std::unordered_map<const ShiftGroup*, std::size_t> ranks;
    for (std::size_t rank = 0; rank < worstFirst.size(); ++rank)
        ranks.emplace(worstFirst[rank]->group, rank);
    std::vector<bool> isSure(worstFirst.size(), true);
    for (const auto& [again, first] : m_pairPlaces) {
        if (m_isShifted[again] || m_isShifted[first])
            continue;
        std::vector<std::size_t> found; // of the groups of the pair
        for (const ShiftGroups* const groups : {&m_bases, &m_rovers}) {
            for (const std::uint32_t place : {again, first}) {
                const auto rank = ranks.find(&groups->groups[groups->groupOf[place]]);
                if (rank != ranks.end())
                    found.push_back(rank->second);
            }
        }
        for (const std::size_t rank : found)
            isSure[rank] = isSure[rank] && rank == std::ranges::min(found);
    }
    std::vector<const ShiftCandidate*> sure;
    for (std::size_t rank = 0; rank < worstFirst.size(); ++rank) {
        if (isSure[rank])
            sure.push_back(worstFirst[rank]);
    }
    return sure;
}

void ShiftSearch::searchPairs(const std::vector<statistics::MeasuredPair>& pairs)
{
    m_pairPlaces = placesOf(pairs);
    // The one that disagrees most often is wrong.
    const auto isWorse = [](const ShiftCandidate* a, const ShiftCandidate* b) {
        return std::tuple(b->shared.size(), a->group->members.size()) <
               std::tuple(a->shared.size(), b->group->members.size());
    };
    for (;;) {
        std::vector<ShiftCandidate> bases = pairCandidates(m_bases, pairs);
        std::vector<ShiftCandidate> rovers = pairCandidates(m_rovers, pairs);
        settleCauses(m_sample, m_bases, m_rovers, bases, rovers);
        std::vector<const ShiftCandidate*> left;
        for (const auto* const candidates : {&bases, &rovers}) {
            for (const ShiftCandidate& candidate : *candidates) {
                if (!candidate.isDropped)
                    left.push_back(&candidate);
            }
        }
        if (left.empty())
            return;
        std::ranges::stable_sort(left, isWorse);
        for (const ShiftCandidate* const candidate : surelyWrong(left))
            accept(*candidate, Evidence::Pairs);
    }
}

// --- what is found ---

void ShiftSearch::accept(const ShiftCandidate& candidate, Evidence evidence)
{
    using Cause = GroupShift::Cause;
    const ShiftGroup& group = *candidate.group;
    GroupShift shift;
    shift.evidence = evidence;
    shift.day = shift.lastDay = group.day;
    if (group.key == GroupKey::Base) {
        shift.cause = candidate.isUnclear ? Cause::BaseOrPole : Cause::Base;
        shift.base = nameOf(group);
        shift.rover = candidate.rover;
    } else {
        shift.cause = Cause::Pole;
        shift.rover = nameOf(group);
    }
    if (candidate.plane.isFound) {
        shift.eastM = candidate.plane.eastM;
        shift.northM = candidate.plane.northM;
        shift.planeKnownM = candidate.plane.knownM();
    }
    if (candidate.height.isFound) {
        shift.heightM = candidate.height.heightM;
        shift.heightKnownM = candidate.height.knownM();
    }
    shift.results = candidate.results;
    shift.shared = candidate.shared.size();
    for (const std::uint32_t place : candidate.shared) {
        const std::int64_t time = m_sample.results[place].timeMs;
        if (time != 0 && (shift.firstMs == 0 || time < shift.firstMs))
            shift.firstMs = time;
    }
    for (const std::uint32_t place : group.members)
        m_isShifted[place] = true;
    m_found.push_back(std::move(shift));
}

} // namespace

std::vector<GroupShift> findGroupShifts(const statistics::SurveySample& sample,
                                        const std::vector<statistics::MeasuredPair>& pairs,
                                        const ShiftLimits& limits)
{
    return ShiftSearch(sample, limits).run(pairs);
}
