#include "plots/BaseDifferencePlot.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "plots/GroupClasses.h"
#include "plots/MarkSeries.h"
#include "plots/PolyLine.h"

#include <QPainterPath>
#include <QPen>
#include <qwt_plot_shapeitem.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using statistics::GroupKey;
using statistics::MeasuredPair;

constexpr double kLeastM = 0.002;
constexpr double kLeastShare = 0.2; // of a tolerance, which is then near enough to be seen
constexpr double kUnderData = 10;
constexpr double kOverData = 25;
constexpr double kBand = 2; // standard deviations
constexpr int kBandOpacity = 22;
constexpr int kEdgeOpacity = 130;

struct Component
{
    const char* axis;
    double MeasuredPair::*value;
    std::size_t tolerance; ///< place in `ResurveyTolerances`
};

constexpr std::array<Component, 3> kComponents{{
    {QT_TRANSLATE_NOOP("BaseDifferencePlot", "dE (m)"), &MeasuredPair::eastM, 1},
    {QT_TRANSLATE_NOOP("BaseDifferencePlot", "dN (m)"), &MeasuredPair::northM, 0},
    {QT_TRANSLATE_NOOP("BaseDifferencePlot", "dH (m)"), &MeasuredPair::heightM, 2},
}};

/// The differences of a base, and when they were measured.
struct OfBase
{
    statistics::Moments moments;
    QwtInterval time;
};

} // namespace

QString BaseDifferencePlot::caption() const
{
    return tr("Points measured twice, by base");
}

std::vector<BaseDifferencePlot::Shown> BaseDifferencePlot::shownPairs(std::size_t& untimed) const
{
    std::vector<std::pair<const SurveyPoint*, const MeasuredPair*>> byResult;
    byResult.reserve(data().pairs->pairs.size());
    for (const MeasuredPair& pair : data().pairs->pairs)
        byResult.emplace_back(pair.again, &pair);
    std::sort(byResult.begin(), byResult.end(),
              [](const auto& a, const auto& b) { return std::less<>()(a.first, b.first); });
    std::vector<Shown> shown;
    basalt::LocalTimes zone = data().zone;
    for (const std::uint32_t place : data().places) {
        const SurveyPoint* const point = data().result(place).point;
        const auto found =
            std::lower_bound(byResult.begin(), byResult.end(), point, [](const auto& a, auto* b) {
                return std::less<const SurveyPoint*>()(a.first, b);
            });
        if (found == byResult.end() || found->first != point)
            continue;
        if (hasShownTime(point->dateTime))
            shown.push_back({found->second, place, toClockMs(zone.clockSeconds(point->dateTime))});
        else
            ++untimed;
    }
    return shown;
}

void BaseDifferencePlot::fill()
{
    std::size_t untimed = 0;
    if (data().pairs == nullptr || data().pairs->pairs.empty())
        return setEmpty(tr("There are no points measured twice."));
    const std::vector<Shown> pairs = shownPairs(untimed);
    if (pairs.empty())
        return setEmpty(tr("None of these results measures a point again."));
    std::vector<std::uint32_t> places;
    QwtInterval span(pairs.front().clockMs, pairs.front().clockMs);
    places.reserve(pairs.size());
    for (const Shown& each : pairs) {
        places.push_back(each.place);
        span = span.extend(each.clockMs);
    }
    const GroupClasses bases(data(), places, GroupKey::Base, look());
    const QwtInterval time = span.width() < kHourMs ? QwtInterval(span.minValue() - kHourMs / 2,
                                                                  span.maxValue() + kHourMs / 2)
                                                    : widened(span, 0.03);
    for (int i = 0; i < int(kComponents.size()); ++i)
        fillPanel(i, pairs, bases, {time, time});
    for (std::size_t base = 0; base < bases.classCount(); ++base)
        addLegend(PlotLegend::Sign::Disc, bases.color(base), bases.name(base));
    addToleranceLegend();
    setNote(tr("Pairs: %1, without a time: %2. East, north and height: later minus first "
               "measurement; line: mean of a "
               "base, band: two standard deviations about it.")
                .arg(lum::groupedNumber(pairs.size()), lum::groupedNumber(untimed)));
}

void BaseDifferencePlot::fillPanel(int number, const std::vector<Shown>& pairs,
                                   const GroupClasses& bases, const PlotRanges& time)
{
    const Component& component = kComponents[std::size_t(number)];
    std::vector<PlotMark> marks;
    std::vector<double> values;
    marks.reserve(pairs.size());
    values.reserve(pairs.size());
    for (const Shown& each : pairs) {
        const double value = each.pair->*component.value;
        if (!isShown(value))
            continue;
        marks.push_back(
            {each.clockMs, value, each.place, bases.markColorOf(data().result(each.place))});
        values.push_back(value);
    }
    const double tolerance = data().tolerances.metres[component.tolerance];
    panel(number).setAxes(PlotScale::Moment, tr("Time"), tr(component.axis));
    panel(number).setXAxisShown(number + 1 == int(kComponents.size()));
    panel(number).setRanges(time, rangesOf(std::move(values), {-tolerance, 0, tolerance},
                                           std::max(kLeastM, kLeastShare * tolerance)));
    panel(number).addHorizontal(0, QPen(look().faint, 0));
    for (const double limit : {-tolerance, tolerance}) {
        if (tolerance > 0)
            panel(number).addHorizontal(limit, QPen(look().limit, dpi_scaled(1.0), Qt::DashLine));
    }
    addMeans(number, pairs, bases);
    panel(number).add(std::make_unique<MarkSeries>(std::move(marks), bases.markColors(),
                                                   selection(), look().selected, look().text,
                                                   MarkSeries::Order::Mixed));
}

void BaseDifferencePlot::addToleranceLegend()
{
    QStringList metres; // east, north, height
    for (const Component& component : kComponents)
        metres << shortText(data().tolerances.metres[component.tolerance]);
    if (metres.count(metres.front()) == metres.size())
        metres = metres.mid(0, 1);
    addLegend(PlotLegend::Sign::DashedLine, look().limit,
              tr("tolerance of resurveys: %1 m").arg(metres.join(QLatin1String(" / "))));
}

void BaseDifferencePlot::addMeans(int number, const std::vector<Shown>& pairs,
                                  const GroupClasses& bases)
{
    const Component& component = kComponents[std::size_t(number)];
    std::vector<OfBase> all(bases.ownCount());
    for (const Shown& each : pairs) {
        const std::size_t base = bases.classOf(data().result(each.place));
        const double value = each.pair->*component.value;
        if (base >= all.size() || !isShown(value))
            continue;
        all[base].moments.add(value);
        all[base].time = all[base].time.isValid() ? all[base].time.extend(each.clockMs)
                                                  : QwtInterval(each.clockMs, each.clockMs);
    }
    for (std::size_t base = 0; base < all.size(); ++base) {
        const auto& [moments, time] = all[base];
        if (moments.count() < 2)
            continue;
        const double half = kBand * moments.standardDeviation();
        QColor color = bases.color(base);
        const QPolygonF mean(
            QVector<QPointF>{{time.minValue(), moments.mean()}, {time.maxValue(), moments.mean()}});
        panel(number).addPlain(std::make_unique<PolyLine>(mean, QPen(color, dpi_scaled(2.0))),
                               kOverData);
        QColor edge = color;
        edge.setAlpha(kEdgeOpacity);
        color.setAlpha(kBandOpacity);
        auto band = std::make_unique<QwtPlotShapeItem>();
        band->setRect({time.minValue(), moments.mean() - half, time.width(), 2 * half});
        band->setPen(QPen(edge, 1));
        band->setBrush(color);
        panel(number).addPlain(std::move(band), kUnderData);
    }
}
