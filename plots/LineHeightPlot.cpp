#include "plots/LineHeightPlot.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "plots/MarkSeries.h"
#include "plots/Stations.h"
#include "plots/VerdictClasses.h"

#include <QPen>

namespace {

constexpr double kLeastM = 0.01;

} // namespace

QString LineHeightPlot::caption() const
{
    return tr("Height differences along the lines");
}

void LineHeightPlot::fill()
{
    VerdictClasses verdicts(look());
    std::vector<std::uint32_t> shown;
    std::vector<PlotMark> marks;
    std::vector<double> heights;
    statistics::Moments moments;
    const std::vector<std::uint32_t> first = data().firstPlaces();
    shown.reserve(first.size());
    marks.reserve(first.size());
    heights.reserve(first.size());
    for (const std::uint32_t place : first) {
        const statistics::Observation& result = data().result(place);
        moments.add(result.heightM);
        if (!isShown(result.heightM))
            continue;
        marks.push_back({double(shown.size()), result.heightM, place, verdicts.colorOf(result)});
        heights.push_back(result.heightM);
        shown.push_back(place);
    }
    if (marks.empty())
        return setEmpty(tr("None of the results has a design elevation."));
    setStations(shown);
    const double limitM = data().sample->limits.designVerticalM;
    const QwtInterval along = widened({-0.5, double(shown.size()) - 0.5}, 0.01);
    panel(0).setRanges({along, along}, rangesOf(std::move(heights), {-limitM, 0, limitM}, kLeastM));
    panel(0).addHorizontal(0, QPen(look().faint, 0));
    panel(0).add(std::make_unique<MarkSeries>(std::move(marks), verdicts.colors(), selection(),
                                              look().selected, look().text));
    for (const auto& [color, text] : verdicts.legend())
        addLegend(PlotLegend::Sign::Disc, color, text);
    addMean(moments);
    if (limitM > 0)
        addLimits(limitM);
    setNote(tr("Results: %1, without a design elevation: %2.")
                .arg(lum::groupedNumber(shown.size()),
                     lum::groupedNumber(first.size() - shown.size())));
}

void LineHeightPlot::setStations(const std::vector<std::uint32_t>& places)
{
    const auto stations = Stations::of(data(), places);
    const bool isOneLine = stations->lines.size() == 1;
    panel(0).setAxes(new StationEngine(stations), new StationDraw(stations),
                     isOneLine ? tr("Points of line %1").arg(stations->lines.front().name)
                               : tr("Lines, point by point"),
                     tr("Height difference (m)"));
}

void LineHeightPlot::addMean(const statistics::Moments& moments)
{
    panel(0).addHorizontal(moments.mean(), QPen(look().figure, dpi_scaled(1.5)));
    QString text = tr("mean: %1 m").arg(numberText(moments.mean(), 3));
    if (moments.count() > 1)
        text = tr("mean: %1 m, standard deviation: %2 m")
                   .arg(numberText(moments.mean(), 3), numberText(moments.standardDeviation(), 3));
    addLegend(PlotLegend::Sign::Line, look().figure, text);
}

void LineHeightPlot::addLimits(double limitM)
{
    for (const double limit : {-limitM, limitM})
        panel(0).addHorizontal(limit, QPen(look().limit, dpi_scaled(1.5), Qt::DashLine));
    addLegend(PlotLegend::Sign::DashedLine, look().limit, tr("limit: %1 m").arg(shortText(limitM)));
}
