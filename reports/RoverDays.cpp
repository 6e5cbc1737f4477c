#include "reports/RoverDays.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace {

using statistics::GroupKey;
using statistics::KeyValue;
using statistics::Observation;
using statistics::SurveySample;

/// The places of the rovers in the sample's values, the one with most points first.
std::vector<std::size_t> byPoints(const SurveySample& sample)
{
    std::vector<std::size_t> points(sample.valuesOf(GroupKey::Rover).size());
    for (const Observation& result : sample.results)
        ++points[result.key(GroupKey::Rover)];
    std::vector<std::size_t> places(points.size());
    std::iota(places.begin(), places.end(), std::size_t(0));
    std::stable_sort(places.begin(), places.end(),
                     [&](std::size_t a, std::size_t b) { return points[a] > points[b]; });
    return places;
}

/// The row of each of the sample's days.
std::vector<RoverDays::Row*> makeRows(RoverDays& table, const SurveySample& sample,
                                      std::size_t mostDays)
{
    const std::vector<KeyValue>& days = sample.valuesOf(GroupKey::Day);
    const std::size_t unknown = !days.empty() && days[0].number == KeyValue::kNoNumber ? 1 : 0;
    const std::size_t known = days.size() - unknown;
    table.earlierDays = known > mostDays ? known - mostDays : 0;
    std::vector<RoverDays::Row*> rows(unknown, &table.withoutTime);
    rows.resize(unknown + table.earlierDays, &table.earlier);
    table.days.reserve(known - table.earlierDays); // so that the rows stay in their places
    for (std::size_t i = rows.size(); i < days.size(); ++i)
        rows.push_back(&table.days.emplace_back(RoverDays::Row{days[i].number, {}}));
    for (RoverDays::Row* const row : rows)
        row->points.assign(table.columns(), 0);
    return rows;
}

/// A rover on a day.
struct Span
{
    std::int64_t firstMs = 0;
    std::int64_t lastMs = 0;
    std::size_t points = 0;
};

/// \param columnOf by place of a rover in the sample's values
void addWork(RoverDays& table, const SurveySample& sample, const std::vector<std::size_t>& columnOf)
{
    constexpr double kHourMs = 3600000;
    const std::size_t all = table.columns();
    table.work.resize(all + 1);
    std::map<std::pair<std::uint32_t, std::uint32_t>, Span> spans;
    for (const Observation& result : sample.results) {
        if (result.verdict == statistics::Verdict::Failed) {
            ++table.work[columnOf[result.key(GroupKey::Rover)]].failed;
            ++table.work[all].failed;
        }
        if (result.timeMs == 0)
            continue;
        Span& span = spans[{result.key(GroupKey::Day), result.key(GroupKey::Rover)}];
        span.firstMs = span.points == 0 ? result.timeMs : std::min(span.firstMs, result.timeMs);
        span.lastMs = span.points == 0 ? result.timeMs : std::max(span.lastMs, result.timeMs);
        ++span.points;
    }
    for (const auto& [keys, span] : spans) {
        if (span.lastMs == span.firstMs)
            continue;
        for (const std::size_t column : {columnOf[keys.second], all}) {
            table.work[column].hours += double(span.lastMs - span.firstMs) / kHourMs;
            table.work[column].points += span.points;
        }
    }
}

} // namespace

std::size_t RoverDays::Row::total() const
{
    return std::accumulate(points.begin(), points.end(), std::size_t(0));
}

double RoverDays::Work::pointsAnHour() const
{
    return double(points) / hours;
}

RoverDays roverDaysOf(const SurveySample& sample, std::size_t mostColumns, std::size_t mostDays)
{
    RoverDays table;
    const std::vector<std::size_t> rovers = byPoints(sample);
    const std::size_t named = rovers.size() <= mostColumns ? rovers.size() : mostColumns - 1;
    table.otherRovers = rovers.size() - named;
    std::vector<std::size_t> columnOf(rovers.size(), named);
    for (std::size_t column = 0; column < named; ++column) {
        columnOf[rovers[column]] = column;
        table.rovers.push_back(sample.valuesOf(GroupKey::Rover)[rovers[column]].text);
    }
    const std::vector<RoverDays::Row*> rows = makeRows(table, sample, mostDays);
    table.all.points.assign(table.columns(), 0);
    for (const Observation& result : sample.results) {
        const std::size_t column = columnOf[result.key(GroupKey::Rover)];
        ++rows[result.key(GroupKey::Day)]->points[column];
        ++table.all.points[column];
    }
    addWork(table, sample, columnOf);
    return table;
}
