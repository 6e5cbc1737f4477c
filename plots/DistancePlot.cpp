#include "plots/DistancePlot.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "plots/BarSeries.h"

#include <QPen>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

constexpr double kLeastM = 0.04;
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

std::vector<double> shownDistances(const PlotData& data, const std::vector<std::uint32_t>& places)
{
    std::vector<double> distances;
    distances.reserve(places.size());
    for (const std::uint32_t place : places) {
        if (const double distance = data.result(place).distanceM; isShown(distance))
            distances.push_back(distance);
    }
    return distances;
}

bool isBeyond(double distance, double limitM)
{
    return limitM > 0 && distance > limitM + kRoundingM;
}

/// The results by class, few where the farthest is very far. In the class of the limit those beyond
/// it come after the others.
std::map<std::pair<std::int64_t, bool>, PlotBar>
classesOf(const PlotData& data, const std::vector<std::uint32_t>& places, double width)
{
    const double limitM = data.sample->limits.designHorizontalM;
    std::map<std::pair<std::int64_t, bool>, PlotBar> bars;
    for (const std::uint32_t place : places) {
        const double distance = data.result(place).distanceM;
        if (!isShown(distance))
            continue;
        const auto number = static_cast<std::int64_t>(std::ceil((distance - kRoundingM) / width));
        bars[{std::max(std::int64_t(0), number - 1), isBeyond(distance, limitM)}].places.push_back(
            place);
    }
    return bars;
}

} // namespace

DistancePlot::DistancePlot(QWidget* parent) : StatisticsPlot(1, parent)
{
    panel(0).setCounting();
}

QString DistancePlot::caption() const
{
    return tr("Horizontal distances from the design");
}

void DistancePlot::fill()
{
    const std::vector<std::uint32_t> first = data().firstPlaces();
    std::vector<double> distances = shownDistances(data(), first);
    if (distances.empty())
        return setEmpty(tr("None of the results has a design position."));
    const double limitM = data().sample->limits.designHorizontalM;
    const PlotRanges ranges = rangesFromZero(distances, {limitM}, kLeastM);
    panel(0).setAxes(PlotScale::Number, tr("Horizontal distance (m)"), tr("Points"));
    const double most = addBars(first, classWidth(ranges.usual, limitM));
    const QwtInterval counts(0, std::max(most * 1.08, kLeastPoints));
    panel(0).setRanges(ranges, {counts, counts});
    const std::size_t count = distances.size();
    if (limitM > 0)
        addLimit(limitM, distances);
    const double p95 = statistics::percentile95(distances);
    panel(0).addVertical(p95, QPen(look().figure, dpi_scaled(2.0)));
    addLegend(PlotLegend::Sign::Line, look().figure,
              tr("95 % are not farther than %1 m").arg(numberText(p95, 3)));
    setNote(tr("Results: %1, without a design position: %2.")
                .arg(lum::groupedNumber(count), lum::groupedNumber(first.size() - count)),
            tr("95 %: by nearest rank, of n distances in ascending order number 0.95 n, "
               "rounded up."));
}

double DistancePlot::addBars(const std::vector<std::uint32_t>& places, double width)
{
    std::vector<PlotBar> bars;
    double most = 0;
    auto classes = classesOf(data(), places, width);
    bars.reserve(classes.size());
    for (auto& [key, bar] : classes) {
        const auto& [number, isFar] = key;
        bar.from = double(number) * width;
        bar.to = bar.from + width;
        bar.color = isFar ? look().bad : look().good;
        if (!bars.empty() && bars.back().from == bar.from)
            bar.below = bars.back().top();
        bar.text = tr("from %1 to %2 m: %3")
                       .arg(numberText(bar.from, 3), numberText(bar.to, 3),
                            lum::groupedNumber(bar.places.size()));
        most = std::max(most, bar.top());
        bars.push_back(std::move(bar));
    }
    panel(0).add(std::make_unique<BarSeries>(std::move(bars), selection(), look().selected));
    return most;
}

void DistancePlot::addLimit(double limitM, const std::vector<double>& distances)
{
    const auto beyond =
        std::count_if(distances.begin(), distances.end(),
                      [limitM](double distance) { return isBeyond(distance, limitM); });
    const auto within = std::ptrdiff_t(distances.size()) - beyond;
    panel(0).addVertical(limitM, QPen(look().limit, dpi_scaled(1.5), Qt::DashLine));
    addLegend(PlotLegend::Sign::DashedLine, look().limit, tr("limit: %1 m").arg(shortText(limitM)));
    addLegend(PlotLegend::Sign::Box, look().good,
              tr("not farther than the limit: %1").arg(lum::groupedNumber(within)));
    addLegend(PlotLegend::Sign::Box, look().bad, tr("farther: %1").arg(lum::groupedNumber(beyond)));
}
