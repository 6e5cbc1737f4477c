#include "quality/statistics/RoverLog.h"

#include "quality/statistics/Grouping.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace statistics {

namespace {

constexpr double kMinuteMs = 60000;
constexpr double kHourMs = 60 * kMinuteMs;

using Members = std::vector<const Observation*>;

/// The results of each group in the order of their times; those of one time in their own order.
std::vector<Members> inOrderOfTime(const SurveySample& sample, const Grouping& grouping)
{
    std::vector<Members> groups(grouping.groupCount);
    for (std::size_t i = 0; i < sample.results.size(); ++i)
        groups[grouping.groupOf[i]].push_back(&sample.results[i]);
    for (Members& members : groups)
        std::stable_sort(
            members.begin(), members.end(),
            [](const Observation* a, const Observation* b) { return a->timeMs < b->timeMs; });
    return groups;
}

double minutesBetween(std::int64_t fromMs, std::int64_t toMs)
{
    return static_cast<double>(toMs - fromMs) / kMinuteMs;
}

void add(RoverSession& session, const Observation& result)
{
    const SurveyPoint& point = *result.point;
    ++(point.pointMark != 0 ? session.receivers : session.sources);
    session.resurveys += result.kind == ResultKind::Resurvey ? 1U : 0U;
    session.repeats += result.kind == ResultKind::Repeat ? 1U : 0U;
    session.failed += result.verdict == Verdict::Failed ? 1U : 0U;
    session.notJudged += result.verdict == Verdict::NotJudged ? 1U : 0U;
    session.pdop.add(point.pdop);
    session.satellites.add(point.satelliteNumber);
    session.horizontalAccuracyM.add(point.horizontalAccuracy);
    session.verticalAccuracyM.add(point.verticalAccuracy);
    session.baseDistanceM.add(point.referenceDistance);
    ++session.solutions[point.solutionType];
}

/// \param members in the order of their times, not empty
void setTimes(RoverSession& session, const Members& members)
{
    session.firstMs = members.front()->timeMs;
    session.lastMs = members.back()->timeMs;
    Average gaps;
    for (std::size_t i = 1; i < members.size(); ++i)
        gaps.add(minutesBetween(members[i - 1]->timeMs, members[i]->timeMs));
    session.longestGapMinutes = gaps.maximum();
}

/// \param members likewise
void setAntenna(RoverSession& session, const Members& members)
{
    std::vector<double>& heights = session.antennaHeightsM;
    for (const Observation* const result : members) {
        const double height = result->point->antennaHeight;
        if (!std::isfinite(height))
            continue;
        session.antennaChanges += !heights.empty() && height != heights.back() ? 1U : 0U;
        heights.push_back(height);
    }
    std::sort(heights.begin(), heights.end());
    heights.erase(std::unique(heights.begin(), heights.end()), heights.end());
}

bool hasBasePosition(const SurveyPoint& point)
{
    return (point.referenceNorth != 0 || point.referenceEast != 0) &&
           std::isfinite(point.referenceNorth) && std::isfinite(point.referenceEast);
}

/// The earliest result that tells where the base is; the earliest one when none does.
const SurveyPoint* placeOfBase(const Members& members)
{
    const auto found = std::find_if(members.begin(), members.end(), [](const Observation* result) {
        return hasBasePosition(*result->point);
    });
    return (found != members.end() ? *found : members.front())->point;
}

void setTimes(BaseUse& use, const Members& members)
{
    const auto first = std::find_if(members.begin(), members.end(),
                                    [](const Observation* result) { return result->timeMs != 0; });
    if (first == members.end())
        return;
    use.firstMs = (*first)->timeMs;
    use.lastMs = members.back()->timeMs;
}

/// Compares where a result puts the base with where the first one does; both tell it.
void addPosition(BaseUse& use, const SurveyPoint& point, double planeUnitM)
{
    const double north = point.referenceNorth - use.first->referenceNorth;
    const double east = point.referenceEast - use.first->referenceEast;
    const double moved = std::sqrt(north * north + east * east) * planeUnitM;
    const double height = std::fabs(point.referenceAltitude - use.first->referenceAltitude);
    use.movedM = std::max(use.movedM, moved);
    use.movedHeightM = std::max(use.movedHeightM, height); // a height that is no number is none
    if (!(moved > kBaseMovedM) && !(height > kBaseMovedM))
        return;
    if (use.elsewhere++ == 0)
        use.firstElsewhere = &point;
}

/// \param members results of one base, in the order of their times, not empty
BaseUse baseOf(const SurveySample& sample, const Members& members)
{
    BaseUse use;
    use.first = placeOfBase(members);
    use.base = use.first->baseStationId;
    use.results = members.size();
    setTimes(use, members);
    std::set<std::uint32_t> days;
    std::set<std::uint32_t> rovers;
    for (const Observation* const result : members) {
        const SurveyPoint& point = *result->point;
        rovers.insert(result->key(GroupKey::Rover));
        if (result->timeMs != 0)
            days.insert(result->key(GroupKey::Day));
        use.distanceM.add(point.referenceDistance);
        if (!hasBasePosition(point) || !hasBasePosition(*use.first))
            continue;
        addPosition(use, point, sample.limits.planeUnitM);
    }
    use.days = days.size();
    use.rovers = rovers.size();
    return use;
}

} // namespace

double RoverSession::hours() const
{
    return day == KeyValue::kNoNumber ? kUnknown : static_cast<double>(lastMs - firstMs) / kHourMs;
}

double RoverSession::pointsAnHour() const
{
    return hours() > 0 ? static_cast<double>(points()) / hours() : kUnknown;
}

std::vector<RoverSession> roverSessionsOf(const SurveySample& sample)
{
    const Grouping grouping =
        groupBy(sample, {GroupKey::Day, GroupKey::Rover, GroupKey::Surveyor, GroupKey::Base});
    const std::vector<Members> groups = inOrderOfTime(sample, grouping);
    std::vector<RoverSession> sessions(groups.size());
    for (std::size_t group = 0; group < groups.size(); ++group) {
        RoverSession& session = sessions[group];
        const auto text = [&](GroupKey key) { return grouping.value(sample, group, key).text; };
        session.day = grouping.value(sample, group, GroupKey::Day).number;
        session.rover = text(GroupKey::Rover);
        session.surveyor = text(GroupKey::Surveyor);
        session.base = text(GroupKey::Base);
        for (const Observation* const result : groups[group])
            add(session, *result);
        setAntenna(session, groups[group]);
        if (session.day != KeyValue::kNoNumber)
            setTimes(session, groups[group]);
    }
    return sessions;
}

double RoverGap::minutes() const
{
    return minutesBetween(before->dateTime, after->dateTime);
}

std::vector<RoverGap> roverGapsOf(const SurveySample& sample, double minutes)
{
    const Grouping grouping = groupBy(sample, {GroupKey::Day, GroupKey::Rover, GroupKey::Surveyor});
    const std::vector<Members> groups = inOrderOfTime(sample, grouping);
    std::vector<RoverGap> gaps;
    for (std::size_t group = 0; group < groups.size(); ++group) {
        if (grouping.value(sample, group, GroupKey::Day).number == KeyValue::kNoNumber)
            continue;
        for (std::size_t i = 1; i < groups[group].size(); ++i) {
            const RoverGap gap{groups[group][i - 1]->point, groups[group][i]->point};
            if (gap.minutes() > minutes)
                gaps.push_back(gap);
        }
    }
    return gaps;
}

bool BaseUse::hasPosition() const
{
    return hasBasePosition(*first);
}

std::vector<BaseUse> basesOf(const SurveySample& sample)
{
    std::vector<BaseUse> bases;
    for (const Members& members : inOrderOfTime(sample, groupBy(sample, {GroupKey::Base})))
        bases.push_back(baseOf(sample, members));
    return bases;
}

} // namespace statistics
