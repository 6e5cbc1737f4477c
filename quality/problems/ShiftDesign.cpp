#include "quality/problems/ShiftDesign.h"

#include "quality/problems/Median.h"
#include "quality/problems/ShiftCause.h"
#include "quality/problems/ShiftHeights.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>
#include <utility>

namespace {

using statistics::GroupKey;
using statistics::Observation;

constexpr double kPreciseDesignM = 0.1; // design heights that scatter less were measured
constexpr double kSkidAngleDeg = 5;     // how straight beside its line a skid lies
constexpr double kSigmaOfMedians = 1.4826;

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

bool isStake(const Observation& result)
{
    return std::isfinite(result.distanceM) && result.point->obstacle.empty();
}

void keepShifted(std::vector<ShiftCandidate>& candidates)
{
    std::erase_if(candidates, [](const ShiftCandidate& each) {
        return !each.isShifted() || each.shared.empty();
    });
}

} // namespace

ShiftDesign::ShiftDesign(const statistics::SurveySample& sample, const ShiftGroups& bases,
                         const ShiftGroups& rovers, const ShiftLimits& limits)
    : m_sample(sample), m_bases(bases), m_rovers(rovers), m_limits(limits)
{
    m_heightsM.reserve(sample.results.size());
    for (const Observation& result : sample.results)
        m_heightsM.push_back(result.heightM);
    setLevel();
    judgePlanes();
}

void ShiftDesign::setLevel()
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
    const double levelM = medianOf(medians);
    for (double& median : medians)
        median = std::fabs(median - levelM);
    m_betweenM = kSigmaOfMedians * medianOf(medians);
    for (double& height : m_heightsM)
        height -= levelM;
}

std::vector<double> ShiftDesign::heightsOf(const ResultPlaces& places) const
{
    std::vector<double> heights;
    heights.reserve(places.size());
    for (const std::uint32_t place : places) {
        if (const double height = m_heightsM[place]; std::isfinite(height))
            heights.push_back(height);
    }
    return heights;
}

bool ShiftDesign::isComparable(const ShiftGroup& group) const
{
    const auto isOne = [this](std::uint32_t place) { return isStake(m_sample.results[place]); };
    return static_cast<std::size_t>(std::ranges::count_if(group.members, isOne)) >=
               m_limits.least ||
           heightsOf(group.members).size() >= m_limits.least;
}

bool ShiftDesign::agreesInHeight(const ShiftGroup& group) const
{
    if (!m_isPrecise)
        return false;
    const SteadyOffset offset = SteadyOffset::ofHeights(heightsOf(group.members), {m_limits.least});
    return offset.count != 0 && std::fabs(offset.heightM) <= m_limits.heightM;
}

ShiftCandidate ShiftDesign::judgePlane(const ShiftGroup& group) const
{
    ShiftCandidate candidate{.group = &group};
    std::vector<double> east;
    std::vector<double> north;
    for (const std::uint32_t place : group.members) {
        const Observation& result = m_sample.results[place];
        if (!isStake(result))
            continue;
        east.push_back(result.eastM);
        north.push_back(result.northM);
    }
    candidate.plane = SteadyOffset::ofPlane(east, north, {m_limits.least, m_limits.planeM});
    if (candidate.plane.isFound && isSkid(candidate))
        candidate.plane.isFound = false;
    return candidate;
}

bool ShiftDesign::isSkid(const ShiftCandidate& candidate) const
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
    const double lengthM = std::hypot(candidate.plane.eastM, candidate.plane.northM);
    if (first == nullptr || first->lineNumber != last->lineNumber || lengthM > m_limits.skidM)
        return false;
    const double east = last->designEast - first->designEast;
    const double north = last->designNorth - first->designNorth;
    const double along = east * candidate.plane.eastM + north * candidate.plane.northM;
    const double across = east * candidate.plane.northM - north * candidate.plane.eastM;
    const double degrees = std::atan2(std::fabs(across), std::fabs(along)) * 180 /
                           std::numbers::pi; // from 0, along the line, to 90
    return degrees > 90 - kSkidAngleDeg;
}

/// Bases alone, since a pole shifts heights.
void ShiftDesign::judgePlanes()
{
    m_planes.reserve(m_bases.groups.size());
    for (const ShiftGroup& group : m_bases.groups)
        m_planes.push_back(judgePlane(group));
    keepOutstanding(m_planes, &ShiftCandidate::plane, m_limits.planeM);
}

/// \param heightsM  of each result, without what others make them off
void ShiftDesign::findShared(ShiftCandidate& candidate, const std::vector<double>& heightsM) const
{
    for (const std::uint32_t place : candidate.group->members) {
        const Observation& result = m_sample.results[place];
        const bool isCompared = (!candidate.height.isFound || std::isfinite(heightsM[place])) &&
                                (!candidate.plane.isFound || isStake(result));
        if (!isCompared)
            continue;
        ++candidate.results;
        if (candidate.isSharedBy(result.eastM, result.northM, heightsM[place]))
            candidate.shared.push_back(place);
    }
}

std::vector<ShiftCandidate> ShiftDesign::basesAlone() const
{
    std::vector<ShiftCandidate> candidates = m_planes;
    for (ShiftCandidate& candidate : candidates)
        candidate.height = SteadyOffset::ofHeights(heightsOf(candidate.group->members),
                                                   {m_limits.least, m_limits.heightM, m_betweenM});
    keepOutstanding(candidates, &ShiftCandidate::height, m_limits.heightM);
    for (ShiftCandidate& candidate : candidates) {
        if (candidate.isShifted())
            findShared(candidate, m_heightsM);
    }
    keepShifted(candidates);
    return candidates;
}

std::vector<ShiftCandidate> ShiftDesign::basesAndPoles() const
{
    const ShiftHeights heights = findShiftHeights(m_heightsM, m_bases, m_rovers,
                                                  {m_limits.least, m_limits.heightM, m_betweenM});
    std::vector<double> ofBases = m_heightsM; // what is left of the heights without the other one
    std::vector<double> ofRovers = m_heightsM;
    for (std::size_t place = 0; place < m_heightsM.size(); ++place) {
        ofBases[place] -= heights.ofRover[m_rovers.groupOf[place]].heightM;
        ofRovers[place] -= heights.ofBase[m_bases.groupOf[place]].heightM;
    }
    std::vector<ShiftCandidate> candidates = m_planes;
    for (std::size_t base = 0; base < m_bases.groups.size(); ++base) {
        ShiftCandidate& candidate = candidates[base];
        candidate.height = heights.ofBase[base];
        if (!candidate.isShifted())
            continue;
        findShared(candidate, ofBases);
        if (const std::uint32_t rover = heights.onlyRover[base];
            rover != ShiftHeights::kNone && candidate.height.isFound && !candidate.shared.empty())
            settleWithRover(candidate, m_rovers.groups[rover]);
    }
    for (std::size_t rover = 0; rover < m_rovers.groups.size(); ++rover) {
        if (!heights.ofRover[rover].isFound)
            continue;
        candidates.push_back({.group = &m_rovers.groups[rover], .height = heights.ofRover[rover]});
        findShared(candidates.back(), ofRovers);
    }
    keepShifted(candidates);
    return candidates;
}

/// Turns a base whose only rover is the wrong one into that rover, or marks it.
void ShiftDesign::settleWithRover(ShiftCandidate& base, const ShiftGroup& rover) const
{
    std::vector<ShiftCandidate> bases{base};
    std::vector<ShiftCandidate> rovers{base};
    rovers.front().group = &rover;
    settleCauses(m_sample, m_bases, m_rovers, bases, rovers);
    base = bases.front().isDropped ? rovers.front() : bases.front();
}
