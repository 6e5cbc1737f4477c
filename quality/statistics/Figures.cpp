#include "quality/statistics/Figures.h"

#include <algorithm>
#include <numeric>

namespace statistics {

namespace {

std::size_t place(ResultKind kind)
{
    return static_cast<std::size_t>(kind);
}

std::size_t place(Verdict verdict)
{
    return static_cast<std::size_t>(verdict);
}

/// \param number the result's place in the sample
void add(Figures& figures, const Observation& result, std::size_t number)
{
    ++figures.counts[place(result.kind)][place(result.verdict)];
    if (!result.isFirst())
        return;
    figures.east.add(result.eastM, number);
    figures.north.add(result.northM, number);
    figures.height.add(result.heightM, number);
    figures.distance.add(result.distanceM, number);
    figures.horizontalAccuracy.add(result.horizontalAccuracyM);
    figures.verticalAccuracy.add(result.verticalAccuracyM);
    figures.pdop.add(result.pdop);
    figures.satellites.add(result.satellites);
    figures.fixed += result.isFixed ? 1U : 0U;
}

void addDesign(const SurveySample& sample, const Grouping& grouping, std::vector<Figures>& groups)
{
    const auto set = [&](std::size_t group, const DesignCount& design) {
        groups[group].design = design;
        groups[group].hasDesign = true;
    };
    if (grouping.keys.empty()) {
        set(0, sample.design);
    } else if (grouping.keys == std::vector{GroupKey::Line}) {
        for (std::size_t line = 0; line < groups.size(); ++line)
            set(line, sample.designOfLine[line]);
    } else if (grouping.keys == std::vector{GroupKey::PointKind}) {
        for (std::size_t kind = 0; kind < groups.size(); ++kind)
            set(kind, sample.designOfKind[kind]);
    }
}

/// Sorts the distances by group first, so that each is moved once.
void addPercentiles(const SurveySample& sample, const Grouping& grouping,
                    std::vector<Figures>& groups)
{
    std::vector<std::size_t> ends(groups.size());
    std::size_t total = 0;
    for (std::size_t group = 0; group < groups.size(); ++group) {
        ends[group] = total;
        total += groups[group].distance.count();
    }
    std::vector<double> distances(total);
    for (std::size_t i = 0; i < sample.results.size(); ++i) {
        const Observation& result = sample.results[i];
        if (result.isFirst() && std::isfinite(result.distanceM))
            distances[ends[grouping.groupOf[i]]++] = result.distanceM;
    }
    for (std::size_t group = 0; group < groups.size(); ++group) {
        const std::size_t count = groups[group].distance.count();
        groups[group].distanceP95 =
            percentile95(std::span(distances).subspan(ends[group] - count, count));
    }
}

} // namespace

std::size_t Figures::of(ResultKind kind) const
{
    const auto& verdicts = counts[place(kind)];
    return std::accumulate(verdicts.begin(), verdicts.end(), std::size_t(0));
}

std::size_t Figures::of(ResultKind kind, Verdict verdict) const
{
    return counts[place(kind)][place(verdict)];
}

std::size_t Figures::first() const
{
    return of(ResultKind::Staked) + of(ResultKind::Unplanned);
}

std::size_t Figures::first(Verdict verdict) const
{
    return of(ResultKind::Staked, verdict) + of(ResultKind::Unplanned, verdict);
}

std::size_t Figures::all() const
{
    return first() + of(ResultKind::Resurvey) + of(ResultKind::Repeat);
}

std::size_t Figures::all(Verdict verdict) const
{
    return first(verdict) + of(ResultKind::Resurvey, verdict) + of(ResultKind::Repeat, verdict);
}

double Figures::shareWithinLimits() const
{
    return shareOf(first(Verdict::WithinLimits),
                   first(Verdict::WithinLimits) + first(Verdict::Failed));
}

double Figures::shareFixed() const
{
    return shareOf(fixed, first());
}

bool Figures::hasShift() const
{
    return statistics::hasShift(east) || statistics::hasShift(north) ||
           statistics::hasShift(height);
}

bool Figures::isAllStaked() const
{
    return hasDesign && design.designed > 0 && design.left == 0;
}

bool Figures::isAllWithinLimits() const
{
    return first() > 0 && first(Verdict::WithinLimits) == first();
}

std::vector<Figures> figuresOf(const SurveySample& sample, const Grouping& grouping)
{
    std::vector<Figures> groups(grouping.groupCount);
    for (std::size_t i = 0; i < sample.results.size(); ++i)
        add(groups[grouping.groupOf[i]], sample.results[i], i);
    addDesign(sample, grouping, groups);
    addPercentiles(sample, grouping, groups);
    return groups;
}

std::vector<std::size_t> worstGroups(const std::vector<Figures>& figures, std::size_t most)
{
    struct Group
    {
        std::size_t number;
        std::size_t failed;
        double share;
    };
    std::vector<Group> groups;
    for (std::size_t number = 0; number < figures.size(); ++number) {
        const std::size_t failed = figures[number].all(Verdict::Failed);
        const std::size_t judged = failed + figures[number].all(Verdict::WithinLimits);
        if (failed > 0)
            groups.push_back({number, failed, shareOf(failed, judged)});
    }
    std::stable_sort(groups.begin(), groups.end(), [](const Group& a, const Group& b) {
        return a.share != b.share ? a.share > b.share : a.failed > b.failed;
    });
    groups.resize(std::min(most, groups.size()));
    std::vector<std::size_t> worst(groups.size());
    std::transform(groups.begin(), groups.end(), worst.begin(),
                   [](const Group& group) { return group.number; });
    return worst;
}

} // namespace statistics
