#include "quality/problems/GroupShifts.h"

#include "quality/problems/ShiftCause.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <string>
#include <tuple>
#include <unordered_map>

namespace {

using statistics::GroupKey;
using statistics::Observation;

constexpr std::size_t kLeastPairs = 3;
constexpr double kPreciseDesignM = 0.1; // design heights that scatter less were measured
constexpr double kSameShiftM = 0.1;     // of groups that are all shifted
constexpr double kSkidAngleDeg = 5;     // how straight beside its line a skid lies
constexpr double kSigmaOfMedians = 1.4826;

/// A point measured twice, seen from one of its results.
struct Difference
{
    std::uint32_t place; ///< of that result
    double eastM;        ///< that result minus the other one
    double northM;
    double heightM;
};

/// Withdraws offsets that do not stand out: where differences grow slowly from group to group, as
/// those of a geoid or an elevation model do, none is a fault of its own.
void keepOutstanding(std::vector<ShiftCandidate>& candidates, SteadyOffset ShiftCandidate::*kind,
                     double limitM)
{
    constexpr double kFactor = 2;
    constexpr double kSigmas = 2; // what lies within is no offset but scatter
    std::vector<std::pair<double, SteadyOffset*>> offsets; // by their lengths
    for (ShiftCandidate& candidate : candidates) {
        SteadyOffset& offset = candidate.*kind;
        const double lengthM = std::hypot(offset.eastM, offset.northM, offset.heightM);
        if (offset.isSteady() && (lengthM <= limitM || lengthM > kSigmas * offset.sigmaM))
            offsets.emplace_back(lengthM, &offset);
    }
    std::ranges::sort(offsets);
    double largestM = 0;
    for (const auto& [lengthM, offset] : offsets) {
        if (offset->isFound && lengthM > kFactor * largestM)
            return;
        offset->isFound = false;
        largestM = lengthM;
    }
}

class ShiftSearch
{
public:
    ShiftSearch(const statistics::SurveySample& sample, const ShiftLimits& limits)
        : m_sample(sample), m_limits(limits), m_bases(sample, GroupKey::Base),
          m_rovers(sample, GroupKey::Rover), m_isShifted(sample.results.size())
    {
    }

    [[nodiscard]] std::vector<GroupShift> run(const std::vector<statistics::MeasuredPair>& pairs)
    {
        setLevel();
        searchDesign();
        searchPairs(pairs);
        return std::move(m_found);
    }

private:
    void setLevel();
    void searchDesign();
    [[nodiscard]] std::vector<ShiftCandidate> designCandidates(const ShiftGroups& groups) const;
    [[nodiscard]] ShiftCandidate judgeByDesign(const ShiftGroup& group) const;
    void findShared(ShiftCandidate& candidate) const;
    [[nodiscard]] std::vector<double> heightsOf(const ResultPlaces& places) const;
    [[nodiscard]] static bool isStake(const Observation& result);
    [[nodiscard]] bool isSkid(const ShiftCandidate& candidate) const;

    void searchPairs(const std::vector<statistics::MeasuredPair>& pairs);
    [[nodiscard]] std::vector<std::pair<std::uint32_t, std::uint32_t>>
    placesOf(const std::vector<statistics::MeasuredPair>& pairs) const;
    [[nodiscard]] std::vector<ShiftCandidate>
    pairCandidates(const ShiftGroups& groups,
                   const std::vector<statistics::MeasuredPair>& pairs) const;
    [[nodiscard]] ShiftCandidate judgeByPairs(const ShiftGroup& group,
                                              const std::vector<Difference>& differences) const;

    void accept(const ShiftCandidate& candidate, GroupShift::Evidence evidence);
    [[nodiscard]] bool areAll(const std::vector<ShiftCandidate>& bases) const;
    void unite();

    const statistics::SurveySample& m_sample;
    const ShiftLimits m_limits;
    const ShiftGroups m_bases;
    const ShiftGroups m_rovers;
    double m_levelM = 0;   ///< of measured heights over those of the design
    double m_betweenM = 0; ///< how far groups lie from that
    bool m_isPrecise = true;
    std::vector<bool> m_isShifted; ///< for each result, whether one of its groups is
    std::vector<std::pair<std::uint32_t, std::uint32_t>> m_pairPlaces; ///< again, first
    std::vector<GroupShift> m_found;
};

// --- against the design ---

std::vector<double> ShiftSearch::heightsOf(const ResultPlaces& places) const
{
    std::vector<double> heights;
    for (const std::uint32_t place : places) {
        if (const double height = m_sample.results[place].heightM; std::isfinite(height))
            heights.push_back(height - m_levelM);
    }
    return heights;
}

void ShiftSearch::setLevel()
{
    std::vector<double> sigmas;
    std::vector<double> medians; // a value for each result, so that large groups count for more
    for (const ShiftGroup& group : m_bases.groups) {
        const std::vector<double> heights = heightsOf(group.members);
        if (heights.size() < m_limits.least)
            continue;
        const SteadyOffset offset = SteadyOffset::ofHeights(heights, {m_limits.least});
        sigmas.insert(sigmas.end(), heights.size(), offset.sigmaM);
        medians.insert(medians.end(), heights.size(), offset.heightM);
    }
    m_isPrecise = sigmas.empty() || medianOf(sigmas) <= kPreciseDesignM;
    if (m_isPrecise)
        return;
    m_levelM = medianOf(medians);
    for (double& median : medians)
        median = std::fabs(median - m_levelM);
    m_betweenM = kSigmaOfMedians * medianOf(medians);
}

bool ShiftSearch::isStake(const Observation& result)
{
    return std::isfinite(result.distanceM) && result.point->obstacle.empty();
}

ShiftCandidate ShiftSearch::judgeByDesign(const ShiftGroup& group) const
{
    ShiftCandidate candidate{.group = &group};
    candidate.height = SteadyOffset::ofHeights(heightsOf(group.members),
                                               {m_limits.least, m_limits.heightM, m_betweenM});
    std::vector<double> east;
    std::vector<double> north;
    for (const std::uint32_t place : group.members) {
        const Observation& result = m_sample.results[place];
        if (group.key != GroupKey::Base || !isStake(result))
            continue;
        east.push_back(result.eastM);
        north.push_back(result.northM);
    }
    candidate.plane = SteadyOffset::ofPlane(east, north, {m_limits.least, m_limits.planeM});
    if (candidate.plane.isFound && isSkid(candidate))
        candidate.plane.isFound = false;
    return candidate;
}

bool ShiftSearch::isSkid(const ShiftCandidate& candidate) const
{
    const SurveyPoint* first = nullptr;
    const SurveyPoint* last = nullptr;
    for (const std::uint32_t place : candidate.group->members) {
        const Observation& result = m_sample.results[place];
        if (!isStake(result) || !candidate.plane.sharesPlane(result.eastM, result.northM))
            continue;
        if (first == nullptr)
            first = result.point;
        last = result.point;
    }
    if (first->lineNumber != last->lineNumber)
        return false;
    const double east = last->designEast - first->designEast;
    const double north = last->designNorth - first->designNorth;
    const double along = east * candidate.plane.eastM + north * candidate.plane.northM;
    const double across = east * candidate.plane.northM - north * candidate.plane.eastM;
    const double degrees = std::atan2(std::fabs(across), std::fabs(along)) * 180 /
                           std::numbers::pi; // from 0, along the line, to 90
    return degrees < kSkidAngleDeg || degrees > 90 - kSkidAngleDeg;
}

std::vector<ShiftCandidate> ShiftSearch::designCandidates(const ShiftGroups& groups) const
{
    std::vector<ShiftCandidate> candidates;
    for (const ShiftGroup& group : groups.groups)
        candidates.push_back(judgeByDesign(group));
    keepOutstanding(candidates, &ShiftCandidate::plane, m_limits.planeM);
    keepOutstanding(candidates, &ShiftCandidate::height, m_limits.heightM);
    std::erase_if(candidates, [](const ShiftCandidate& each) { return !each.isShifted(); });
    for (ShiftCandidate& candidate : candidates)
        findShared(candidate);
    std::erase_if(candidates, [](const ShiftCandidate& each) { return each.shared.empty(); });
    return candidates;
}

void ShiftSearch::findShared(ShiftCandidate& candidate) const
{
    for (const std::uint32_t place : candidate.group->members) {
        const Observation& result = m_sample.results[place];
        const bool isCompared = (!candidate.height.isFound || std::isfinite(result.heightM)) &&
                                (!candidate.plane.isFound || isStake(result));
        if (!isCompared)
            continue;
        ++candidate.results;
        if (candidate.isSharedBy(result.eastM, result.northM, result.heightM - m_levelM))
            candidate.shared.push_back(place);
    }
}

void ShiftSearch::searchDesign()
{
    std::vector<ShiftCandidate> bases = designCandidates(m_bases);
    std::vector<ShiftCandidate> rovers;
    const bool hasOnePole = m_sample.valuesOf(GroupKey::Rover).size() == 1;
    if (!areAll(bases) || hasOnePole) {
        rovers = designCandidates(m_rovers);
        settleCauses(m_sample, m_bases, m_rovers, bases, rovers);
    }
    for (const auto* const candidates : {&bases, &rovers}) {
        for (const ShiftCandidate& candidate : *candidates) {
            if (!candidate.isDropped)
                accept(candidate, GroupShift::Evidence::Design);
        }
    }
    const auto isPole = [](const GroupShift& shift) {
        return shift.cause == GroupShift::Cause::Pole;
    };
    if (areAll(bases) && std::ranges::none_of(m_found, isPole))
        unite();
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
    if (candidate.height.isFound && m_isPrecise) {
        const SteadyOffset design =
            SteadyOffset::ofHeights(heightsOf(group.members), {m_limits.least});
        if (design.count != 0 && std::fabs(design.heightM) <= m_limits.heightM)
            candidate.height.isFound = false;
    }
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

void ShiftSearch::searchPairs(const std::vector<statistics::MeasuredPair>& pairs)
{
    m_pairPlaces = placesOf(pairs);
    // The one that disagrees most often is wrong. What it was compared with may be right, then.
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
        accept(**std::ranges::min_element(left, isWorse), GroupShift::Evidence::Pairs);
    }
}

// --- what is found ---

void ShiftSearch::accept(const ShiftCandidate& candidate, GroupShift::Evidence evidence)
{
    using Cause = GroupShift::Cause;
    const ShiftGroup& group = *candidate.group;
    GroupShift shift;
    shift.evidence = evidence;
    shift.day = group.day;
    const std::string& name =
        m_sample.valuesOf(group.key)[m_sample.results[candidate.shared.front()].key(group.key)]
            .text;
    if (group.key == GroupKey::Base) {
        shift.cause = candidate.isUnclear ? Cause::BaseOrPole : Cause::Base;
        shift.base = name;
        shift.rover = candidate.rover;
    } else {
        shift.cause = Cause::Pole;
        shift.rover = name;
    }
    if (candidate.plane.isFound) {
        shift.eastM = candidate.plane.eastM;
        shift.northM = candidate.plane.northM;
        shift.planeBandM = candidate.plane.bandM;
    }
    if (candidate.height.isFound) {
        shift.heightM = candidate.height.heightM;
        shift.heightBandM = candidate.height.bandM;
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

/// Whether all bases that can be compared with the design are shifted alike.
bool ShiftSearch::areAll(const std::vector<ShiftCandidate>& bases) const
{
    const auto isComparable = [this](const ShiftGroup& group) {
        const auto isOne = [this](std::uint32_t place) { return isStake(m_sample.results[place]); };
        return static_cast<std::size_t>(std::ranges::count_if(group.members, isOne)) >=
                   m_limits.least ||
               heightsOf(group.members).size() >= m_limits.least;
    };
    const auto comparable = std::ranges::count_if(m_bases.groups, isComparable);
    if (bases.size() < 2 || static_cast<std::size_t>(comparable) != bases.size())
        return false;
    const auto offsetOf = [](const SteadyOffset& offset) {
        return offset.isFound ? offset : SteadyOffset();
    };
    const SteadyOffset plane = offsetOf(bases.front().plane);
    const SteadyOffset height = offsetOf(bases.front().height);
    return std::ranges::all_of(bases, [&](const ShiftCandidate& each) {
        const SteadyOffset ownPlane = offsetOf(each.plane);
        return std::hypot(ownPlane.eastM - plane.eastM, ownPlane.northM - plane.northM,
                          offsetOf(each.height).heightM - height.heightM) <= kSameShiftM;
    });
}

/// Bases that are all shifted alike tell nothing of a base: one shift of the survey stands for all.
void ShiftSearch::unite()
{
    GroupShift all = m_found.front();
    all.results = all.shared = 0;
    for (const GroupShift& each : m_found) {
        all.results += each.results;
        all.shared += each.shared;
        all.firstMs = std::min(all.firstMs, each.firstMs);
    }
    all.cause = GroupShift::Cause::Survey;
    all.day = statistics::KeyValue::kNoNumber;
    all.base = all.rover = std::string();
    m_found.assign(1, all);
}

} // namespace

std::vector<GroupShift> findGroupShifts(const statistics::SurveySample& sample,
                                        const std::vector<statistics::MeasuredPair>& pairs,
                                        const ShiftLimits& limits)
{
    return ShiftSearch(sample, limits).run(pairs);
}
