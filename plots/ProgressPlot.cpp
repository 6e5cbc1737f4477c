#include "plots/ProgressPlot.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "plots/BarSeries.h"
#include "plots/GroupClasses.h"
#include "plots/PolyLine.h"

#include <QDate>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

using statistics::GroupKey;
using statistics::Pace;
using statistics::StakingProgress;

constexpr double kLeastPoints = 5;
constexpr double kOverData = 25;
constexpr double kBarHalf = 0.4;  // days
constexpr double kRoomDays = 0.7; // beside the first and the last day

QString dayText(std::int64_t day)
{
    return QDate(1970, 1, 1).addDays(day).toString(QStringLiteral("yyyy-MM-dd"));
}

std::size_t doneOf(const StakingProgress& progress)
{
    return progress.days.empty() ? progress.undated : progress.days.back().cumulated;
}

PlotRanges timeOf(const StakingProgress& progress, const Pace& pace)
{
    const double first = double(progress.days.front().day);
    const double last = double(progress.days.back().day);
    const double end = pace.endDay ? double(*pace.endDay) : last;
    // What is to come takes at most as much room as what was, or a week.
    const double usual = std::min(end, last + std::max(7.0, last - first));
    const auto range = [first](double to) {
        return QwtInterval((first - kRoomDays) * kDayMs, (to + kRoomDays) * kDayMs);
    };
    return {range(usual), range(end)};
}

/// The staked points with a day.
std::vector<std::uint32_t> datedPlaces(const PlotData& data)
{
    const auto& days = data.sample->valuesOf(GroupKey::Day);
    std::vector<std::uint32_t> dated;
    dated.reserve(data.places.size());
    for (const std::uint32_t place : data.places) {
        const statistics::Observation& result = data.result(place);
        if (result.kind == statistics::ResultKind::Staked &&
            days[result.key(GroupKey::Day)].number != statistics::KeyValue::kNoNumber)
            dated.push_back(place);
    }
    return dated;
}

} // namespace

ProgressPlot::ProgressPlot(QWidget* parent) : StatisticsPlot(2, parent)
{
    panel(0).setCounting();
    panel(1).setCounting();
}

QString ProgressPlot::caption() const
{
    return tr("Progress");
}

void ProgressPlot::fill()
{
    const StakingProgress progress = statistics::progressOf(*data().sample, data().places);
    if (progress.days.empty())
        return setEmpty(tr("No design point was staked at a known time."));
    const Pace pace = statistics::paceOf(progress, data().design.left);
    const PlotRanges time = timeOf(progress, pace);
    fillDays(time);
    fillCurve(progress, pace, time);
    setNote(noteOf(progress, pace),
            tr("The pace is the mean of the points staked on each of the last %1 days on which any "
               "were. The last day expected is counted with as many days off between them as "
               "these had.")
                .arg(pace.workingDays));
}

void ProgressPlot::fillDays(const PlotRanges& time)
{
    const std::vector<std::uint32_t> staked = datedPlaces(data());
    const GroupClasses surveyors(data(), staked, GroupKey::Surveyor, look());
    std::vector<PlotBar> bars = dayBars(staked, surveyors);
    double most = kLeastPoints;
    for (const PlotBar& bar : bars)
        most = std::max(most, bar.top());
    panel(0).setAxes(PlotScale::Day, tr("Day"), tr("Points a day"));
    panel(0).setXAxisShown(false);
    panel(0).setRanges(time, {{0, most * 1.08}, {0, most * 1.08}});
    panel(0).add(std::make_unique<BarSeries>(std::move(bars), selection(), look().selected));
    for (std::size_t place = 0; place < surveyors.classCount(); ++place)
        addLegend(PlotLegend::Sign::Box, surveyors.color(place), surveyors.name(place));
}

std::vector<PlotBar> ProgressPlot::dayBars(const std::vector<std::uint32_t>& places,
                                           const GroupClasses& surveyors) const
{
    std::map<std::pair<std::uint32_t, std::size_t>, PlotBar> bars; // by day, then by surveyor
    for (const std::uint32_t place : places) {
        const statistics::Observation& result = data().result(place);
        bars[{result.key(GroupKey::Day), surveyors.classOf(result)}].places.push_back(place);
    }
    std::vector<PlotBar> all;
    all.reserve(bars.size());
    std::uint32_t lastDay = 0;
    for (auto& [key, bar] : bars) {
        const auto& [day, surveyor] = key;
        if (!all.empty() && day == lastDay)
            bar.below = all.back().top();
        lastDay = day;
        const std::int64_t number = data().sample->valuesOf(GroupKey::Day)[day].number;
        bar.from = (double(number) - kBarHalf) * kDayMs;
        bar.to = (double(number) + kBarHalf) * kDayMs;
        bar.color = surveyors.color(surveyor);
        bar.text = tr("%1, %2: %3")
                       .arg(dayText(number), surveyors.name(surveyor),
                            lum::groupedNumber(bar.places.size()));
        all.push_back(std::move(bar));
    }
    return all;
}

void ProgressPlot::fillCurve(const StakingProgress& progress, const Pace& pace,
                             const PlotRanges& time)
{
    QPolygonF points;
    std::size_t done = progress.undated;
    for (const statistics::DayProgress& day : progress.days) {
        const QPointF before(double(day.day - 1) * kDayMs, double(done));
        if (points.isEmpty() || points.back().x() < before.x())
            points << before; // flat over the days off
        done = day.cumulated;
        points << QPointF(double(day.day) * kDayMs, double(done));
    }
    const double designed = double(data().design.designed);
    const double most = std::max({double(done), designed, kLeastPoints}) * 1.08;
    panel(1).setAxes(PlotScale::Day, tr("Day"), tr("Points done"));
    panel(1).setXAxisShown(true);
    panel(1).setRanges(time, {{0, most}, {0, most}});
    if (designed > 0) {
        panel(1).addHorizontal(designed, QPen(look().limit, dpi_scaled(1.5), Qt::DashLine));
        addLegend(PlotLegend::Sign::DashedLine, look().limit,
                  tr("design: %1").arg(lum::groupedNumber(data().design.designed)));
    }
    const QPointF last = points.back();
    panel(1).addPlain(std::make_unique<PolyLine>(points, QPen(look().figure, dpi_scaled(2.0))),
                      kOverData);
    addLegend(PlotLegend::Sign::Line, look().figure, tr("done: %1").arg(lum::groupedNumber(done)));
    if (pace.daysNeeded && *pace.daysNeeded > 0)
        addPace(pace, last);
}

/// From the last day to the day on which all will be done.
void ProgressPlot::addPace(const Pace& pace, const QPointF& from)
{
    addLegend(PlotLegend::Sign::DashedLine, look().figure,
              tr("days still needed: %1").arg(lum::groupedNumber(*pace.daysNeeded)));
    if (!pace.endDay)
        return;
    const QPointF end(double(*pace.endDay) * kDayMs, from.y() + double(data().design.left));
    QPen pen(look().figure, dpi_scaled(1.5));
    pen.setDashPattern({2, 2});
    panel(1).addPlain(std::make_unique<PolyLine>(QPolygonF(QVector<QPointF>{from, end}), pen),
                      kOverData);
}

QString ProgressPlot::noteOf(const StakingProgress& progress, const Pace& pace) const
{
    const std::size_t left = data().design.left;
    const bool hasDesign = data().design.designed > 0;
    const QString done = lum::groupedNumber(doneOf(progress));
    QString note = hasDesign ? tr("Done: %1 of %2, left: %3.")
                                   .arg(done, lum::groupedNumber(data().design.designed),
                                        lum::groupedNumber(left))
                             : tr("Done: %1.").arg(done);
    if (progress.undated > 0)
        note = joined(note, tr("Without a time: %1.").arg(lum::groupedNumber(progress.undated)));
    if (!hasDesign)
        return joined(note,
                      tr("Present pace: %1 points a day.").arg(numberText(pace.pointsADay, 0)));
    if (left == 0 || !pace.daysNeeded)
        return note;
    note = joined(note,
                  tr("At the present pace of %1 points a day, days of work still needed: %2.")
                      .arg(numberText(pace.pointsADay, 0), lum::groupedNumber(*pace.daysNeeded)));
    if (pace.endDay)
        note = joined(note, tr("Last day expected: %1.").arg(dayText(*pace.endDay)));
    return note;
}
