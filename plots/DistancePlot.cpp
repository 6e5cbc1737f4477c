#include "plots/DistancePlot.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "plots/BarSeries.h"

#include <QPen>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

constexpr double kLeastM = 0.001;
constexpr double kClasses = 50; // in what is usually seen
constexpr double kLeastPoints = 5;

/// 1, 2 or 5 times a power of ten, at least as large.
double roundUp(double value)
{
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= value * (1 - 1e-9))
            return factor * power;
    }
    return 10 * power;
}

/// The width of the classes: round, or a whole part of a limit that is seen.
double classWidth(const QwtInterval& range, double limitM)
{
    const double width = roundUp(range.width() / kClasses);
    if (limitM < width || limitM > range.maxValue())
        return width;
    return limitM / std::ceil(limitM / width - 1e-9);
}

} // namespace

DistancePlot::DistancePlot(QWidget* parent) : StatisticsPlot(1, parent)
{
    panel(0).setFromZero();
}

QString DistancePlot::caption() const
{
    return tr("Horizontal distances from the design");
}

void DistancePlot::fill()
{
    const std::vector<std::uint32_t> first = data().firstPlaces();
    std::vector<double> distances;
    distances.reserve(first.size());
    for (const std::uint32_t place : first) {
        if (const double distance = data().result(place).distanceM; isShown(distance))
            distances.push_back(distance);
    }
    if (distances.empty())
        return setEmpty(tr("None of the results has a design position."));
    const double limitM = data().sample->limits.designHorizontalM;
    const PlotRanges ranges = rangesFromZero(distances, {limitM}, kLeastM);
    const double width = classWidth(ranges.usual, limitM);
    std::map<std::int64_t, PlotBar> bars; // few where the farthest is very far
    std::size_t beyond = 0;
    for (const std::uint32_t place : first) {
        const double distance = data().result(place).distanceM;
        if (!isShown(distance))
            continue;
        const auto number =
            std::max(std::int64_t(0), std::int64_t(std::ceil((distance - kRoundingM) / width)) - 1);
        bars[number].places.push_back(place);
        beyond += distance > limitM + kRoundingM ? 1U : 0U;
    }
    std::vector<PlotBar> all;
    std::size_t most = 0;
    all.reserve(bars.size());
    for (auto& [number, bar] : bars) {
        bar.from = double(number) * width;
        bar.to = bar.from + width;
        bar.color = limitM > 0 && bar.from >= limitM - width / 2 ? look().bad : look().good;
        bar.text = tr("from %1 to %2 m: %3")
                       .arg(numberText(bar.from, 3), numberText(bar.to, 3),
                            lum::groupedNumber(bar.places.size()));
        most = std::max(most, bar.places.size());
        all.push_back(std::move(bar));
    }
    panel(0).setAxes(PlotScale::Number, tr("Horizontal distance (m)"), tr("Points"));
    const QwtInterval counts(0, std::max(double(most) * 1.08, kLeastPoints));
    panel(0).setRanges(ranges, {counts, counts});
    panel(0).add(std::make_unique<BarSeries>(std::move(all), selection(), look().selected));
    const std::size_t count = distances.size();
    const double p95 = statistics::percentile95(distances);
    panel(0).addVertical(p95, {}, QPen(look().figure, dpi_scaled(2.0)));
    addLegend(PlotLegend::Sign::Line, look().figure,
              tr("95 % are not farther than %1 m").arg(numberText(p95, 3)));
    QString note = tr("Results: %1, without a design position: %2.")
                       .arg(lum::groupedNumber(count), lum::groupedNumber(first.size() - count));
    if (limitM > 0) {
        panel(0).addVertical(limitM, {}, QPen(look().limit, dpi_scaled(1.5), Qt::DashLine));
        addLegend(PlotLegend::Sign::DashedLine, look().limit,
                  tr("limit: %1 m").arg(numberText(limitM, 3)));
        addLegend(PlotLegend::Sign::Box, look().good,
                  tr("not farther than the limit: %1").arg(lum::groupedNumber(count - beyond)));
        addLegend(PlotLegend::Sign::Box, look().bad,
                  tr("farther: %1").arg(lum::groupedNumber(beyond)));
    }
    setNote(note, tr("95 %: by nearest rank, of n distances in ascending order number 0.95 n, "
                     "rounded up."));
}
