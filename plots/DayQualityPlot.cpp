#include "plots/DayQualityPlot.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "plots/GroupClasses.h"
#include "plots/MarkSeries.h"

#include <QPen>

#include <array>
#include <cmath>

namespace {

using statistics::GroupKey;

struct Value
{
    const char* axis;
    double least; ///< the smallest range of the axis
};

constexpr std::array<Value, 2> kValues{{
    {QT_TRANSLATE_NOOP("DayQualityPlot", "Accuracy (m)"), 0.005},
    {QT_TRANSLATE_NOOP("DayQualityPlot", "Satellites"), 5},
}};

double timeOfDay(double clockMs)
{
    return clockMs - std::floor(clockMs / kDayMs) * kDayMs;
}

} // namespace

QString DayQualityPlot::caption() const
{
    return tr("Accuracy and satellites over the day");
}

void DayQualityPlot::fill()
{
    const std::vector<std::uint32_t> first = data().firstPlaces();
    const GroupClasses rovers(data(), first, GroupKey::Rover, look());
    basalt::LocalTimes zone = data().zone;
    std::array<std::vector<PlotMark>, kValues.size()> marks;
    for (auto& each : marks)
        each.reserve(first.size());
    std::size_t untimed = 0;
    QwtInterval span;
    for (const std::uint32_t place : first) {
        const statistics::Observation& result = data().result(place);
        if (!hasShownTime(result.timeMs)) {
            ++untimed;
            continue;
        }
        const double time = timeOfDay(toClockMs(zone.clockSeconds(result.timeMs)));
        span = span.isValid() ? span.extend(time) : QwtInterval(time, time);
        const std::uint8_t color = rovers.markColorOf(result);
        if (isShown(result.horizontalAccuracyM))
            marks[0].push_back({time, result.horizontalAccuracyM, place, color});
        marks[1].push_back({time, double(result.satellites), place, color});
    }
    if (!span.isValid())
        return setEmpty(tr("None of the results has a time."));
    const QwtInterval hours(std::floor(span.minValue() / kHourMs) * kHourMs,
                            std::floor(span.maxValue() / kHourMs + 1) * kHourMs);
    const PlotRanges time{widened(hours, 0.02), widened(hours, 0.02)};
    const QualityLimits& limits = data().sample->limits;
    const std::vector<QColor> colors = rovers.markColors();
    fillPanel(0, std::move(marks[0]), colors, time, limits.hrmsM);
    fillPanel(1, std::move(marks[1]), colors, time, limits.satellites);
    for (std::size_t rover = 0; rover < rovers.classCount(); ++rover)
        addLegend(PlotLegend::Sign::Disc, rovers.color(rover), rovers.name(rover));
    addLegend(PlotLegend::Sign::DashedLine, look().limit,
              tr("limits: %1 m, %2 satellites")
                  .arg(shortText(limits.hrmsM), shortText(limits.satellites)));
    setNote(tr("Horizontal accuracy. Results: %1, of all shown days together, without a time: %2.")
                .arg(lum::groupedNumber(first.size() - untimed), lum::groupedNumber(untimed)));
}

void DayQualityPlot::fillPanel(int number, std::vector<PlotMark> marks,
                               const std::vector<QColor>& colors, const PlotRanges& time,
                               double limit)
{
    std::vector<double> values;
    values.reserve(marks.size());
    for (const PlotMark& mark : marks)
        values.push_back(mark.y);
    const Value& value = kValues[std::size_t(number)];
    panel(number).setAxes(PlotScale::TimeOfDay, tr("Time of the day"), tr(value.axis));
    panel(number).setXAxisShown(number + 1 == int(kValues.size()));
    panel(number).setRanges(time, rangesOf(std::move(values), {0, limit}, value.least));
    if (limit > 0)
        panel(number).addHorizontal(limit, QPen(look().limit, dpi_scaled(1.5), Qt::DashLine));
    panel(number).add(std::make_unique<MarkSeries>(std::move(marks), colors, selection(),
                                                   look().selected, look().text,
                                                   MarkSeries::Order::Mixed));
}
