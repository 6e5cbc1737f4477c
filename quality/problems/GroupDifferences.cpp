#include "quality/problems/GroupDifferences.h"

#include "quality/problems/ShiftCandidate.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace {

using statistics::GroupKey;
using Evidence = GroupShift::Evidence;

/// Differences of the results of a base and a day; those that are known.
class Differences
{
public:
    void add(double eastM, double northM, double heightM, std::int64_t timeMs)
    {
        const bool hasPlane = std::isfinite(eastM + northM);
        const bool hasHeight = std::isfinite(heightM);
        if (hasPlane) {
            m_eastM.push_back(eastM);
            m_northM.push_back(northM);
        }
        if (hasHeight)
            m_heightsM.push_back(heightM);
        if ((hasPlane || hasHeight) && timeMs != 0)
            m_firstMs = m_firstMs == 0 ? timeMs : std::min(m_firstMs, timeMs);
    }

    /// Sets the means.
    void describe(GroupShift& shift) const
    {
        const SteadyOffset plane = SteadyOffset::ofPlane(m_eastM, m_northM, {});
        const SteadyOffset height = SteadyOffset::ofHeights(m_heightsM, {});
        for (std::size_t i = 0; i < m_eastM.size(); ++i) {
            if (!plane.sharesPlane(m_eastM[i], m_northM[i]))
                continue;
            shift.eastM += m_eastM[i] / static_cast<double>(plane.shared);
            shift.northM += m_northM[i] / static_cast<double>(plane.shared);
        }
        for (const double each : m_heightsM) {
            if (height.sharesHeight(each))
                shift.heightM += each / static_cast<double>(height.shared);
        }
        shift.results = std::max(plane.count, height.count);
        shift.shared = std::min(plane.count == 0 ? height.shared : plane.shared,
                                height.count == 0 ? plane.shared : height.shared);
        shift.firstMs = m_firstMs;
    }

private:
    std::vector<double> m_eastM;
    std::vector<double> m_northM;
    std::vector<double> m_heightsM;
    std::int64_t m_firstMs = 0;
};

} // namespace

std::vector<GroupShift> findGroupDifferences(const statistics::SurveySample& sample,
                                             const std::vector<statistics::MeasuredPair>& pairs)
{
    const ShiftGroups bases(sample, GroupKey::Base);
    std::vector<Differences> ofDesign(bases.groups.size());
    std::vector<Differences> ofPairs(bases.groups.size());
    std::unordered_map<const SurveyPoint*, const statistics::MeasuredPair*> pairOf;
    for (const statistics::MeasuredPair& pair : pairs)
        pairOf[pair.again] = &pair;
    for (std::size_t place = 0; place < sample.results.size(); ++place) {
        const statistics::Observation& result = sample.results[place];
        const std::uint32_t group = bases.groupOf[place];
        ofDesign[group].add(result.eastM, result.northM, result.heightM, result.timeMs);
        if (const auto pair = pairOf.find(result.point); pair != pairOf.end())
            ofPairs[group].add(pair->second->eastM, pair->second->northM, pair->second->heightM,
                               result.timeMs);
    }
    std::vector<GroupShift> found;
    for (std::size_t i = 0; i < bases.groups.size(); ++i) {
        const ShiftGroup& group = bases.groups[i];
        GroupShift shift;
        shift.day = shift.lastDay = group.day;
        shift.base =
            sample
                .valuesOf(GroupKey::Base)[sample.results[group.members.front()].key(GroupKey::Base)]
                .text;
        for (const Evidence evidence : {Evidence::Design, Evidence::Pairs}) {
            GroupShift each = shift;
            each.evidence = evidence;
            (evidence == Evidence::Design ? ofDesign : ofPairs)[i].describe(each);
            if (each.results != 0)
                found.push_back(std::move(each));
        }
    }
    return found;
}
