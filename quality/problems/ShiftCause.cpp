#include "quality/problems/ShiftCause.h"

#include "quality/problems/Median.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>

namespace {

using statistics::GroupKey;

constexpr std::size_t kLeastOfName = 3; // results that make a rover one of a base
constexpr double kSameShare = 0.05;     // between the shares of two groups
constexpr double kSameHeightM = 0.03;   // of an antenna or a base, as typed by a crew

enum class Cause
{
    Base,
    Rover,
    Unclear
};

/// Tells the base from the rover.
class CauseJudge
{
public:
    CauseJudge(const statistics::SurveySample& sample, const ShiftGroups& bases,
               const ShiftGroups& rovers)
        : m_sample(sample), m_bases(bases), m_rovers(rovers)
    {
    }

    [[nodiscard]] Cause causeOf(const ShiftCandidate& base, const ShiftCandidate& rover) const
    {
        if (base.plane.isFound)
            return Cause::Base;
        if (std::fabs(base.share() - rover.share()) > kSameShare)
            return base.share() > rover.share() ? Cause::Base : Cause::Rover;
        const std::size_t rovers = namesIn(base, GroupKey::Rover);
        const std::size_t bases = namesIn(rover, GroupKey::Base);
        if (rovers != bases)
            return rovers > bases ? Cause::Base : Cause::Rover;
        if (rovers > 1)
            return base.shared.size() >= rover.shared.size() ? Cause::Base : Cause::Rover;
        if (isLike(base, change(base, m_bases, &SurveyPoint::referenceAltitude)))
            return Cause::Base;
        // An antenna that is typed too small makes the ground too high.
        return isLike(rover, -change(rover, m_rovers, &SurveyPoint::antennaHeight))
                   ? Cause::Rover
                   : Cause::Unclear;
    }

    [[nodiscard]] const std::string& nameOf(const ShiftCandidate& candidate, GroupKey key) const
    {
        return m_sample.valuesOf(key)[keyOf(candidate.shared.front(), key)].text;
    }

private:
    [[nodiscard]] std::uint32_t keyOf(std::uint32_t place, GroupKey key) const
    {
        return m_sample.results[place].key(key);
    }

    /// How many bases or rovers the results of a candidate are of.
    [[nodiscard]] std::size_t namesIn(const ShiftCandidate& candidate, GroupKey key) const
    {
        std::map<std::uint32_t, std::size_t> counts;
        for (const std::uint32_t place : candidate.shared)
            ++counts[keyOf(place, key)];
        return static_cast<std::size_t>(std::ranges::count_if(
            counts, [](const auto& each) { return each.second >= kLeastOfName; }));
    }

    /// How much a value differs from what the same base or rover had on other days; NaN when there
    /// are none.
    [[nodiscard]] double change(const ShiftCandidate& candidate, const ShiftGroups& all,
                                double SurveyPoint::*value) const
    {
        const GroupKey key = candidate.group->key;
        const std::uint32_t own = keyOf(candidate.shared.front(), key);
        std::vector<double> others;
        for (const ShiftGroup& group : all.groups) {
            if (group.day != candidate.group->day && keyOf(group.members.front(), key) == own)
                addValues(group.members, value, others);
        }
        std::vector<double> typed;
        addValues(candidate.shared, value, typed);
        return medianOf(typed) - medianOf(others);
    }
    void addValues(const ResultPlaces& places, double SurveyPoint::*value,
                   std::vector<double>& values) const
    {
        for (const std::uint32_t place : places)
            values.push_back(m_sample.results[place].point->*value);
    }

    [[nodiscard]] static bool isLike(const ShiftCandidate& candidate, double changeM)
    {
        return std::fabs(changeM - candidate.height.heightM) <= kSameHeightM; // not so of NaN
    }

    const statistics::SurveySample& m_sample;
    const ShiftGroups& m_bases;
    const ShiftGroups& m_rovers;
};

bool haveCommon(const ShiftCandidate& a, const ShiftCandidate& b)
{
    ResultPlaces common;
    if (a.group->day == b.group->day)
        std::ranges::set_intersection(a.shared, b.shared, std::back_inserter(common));
    return !common.empty();
}

} // namespace

void settleCauses(const statistics::SurveySample& sample, const ShiftGroups& allBases,
                  const ShiftGroups& allRovers, std::vector<ShiftCandidate>& bases,
                  std::vector<ShiftCandidate>& rovers)
{
    const CauseJudge judge(sample, allBases, allRovers);
    for (ShiftCandidate& base : bases) {
        for (ShiftCandidate& rover : rovers) {
            if (!haveCommon(base, rover))
                continue;
            const Cause cause = judge.causeOf(base, rover);
            (cause == Cause::Rover ? base : rover).isDropped = true;
            if (cause != Cause::Unclear)
                continue;
            base.isUnclear = true;
            base.rover = judge.nameOf(base, GroupKey::Rover);
        }
    }
}
