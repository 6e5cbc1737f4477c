#include "plots/OffsetPlot.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "plots/MarkSeries.h"
#include "plots/VerdictClasses.h"

#include <QPainterPath>
#include <QPen>
#include <QtMath>
#include <qwt_plot_marker.h>
#include <qwt_plot_shapeitem.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kLeastM = 0.04;
constexpr int kSteps = 180; // of an ellipse
constexpr double kOverData = 25;
constexpr double kEllipseIsNear = 15; // times what is seen without it

QPainterPath ellipsePath(const statistics::ErrorEllipse& ellipse)
{
    const double azimuth = qDegreesToRadians(ellipse.azimuthDeg);
    QPainterPath path;
    for (int i = 0; i <= kSteps; ++i) {
        const double angle = 2 * M_PI * i / kSteps;
        const double along = ellipse.semiMajorM * std::cos(angle);
        const double across = ellipse.semiMinorM * std::sin(angle);
        const QPointF at(ellipse.eastM + along * std::sin(azimuth) + across * std::cos(azimuth),
                         ellipse.northM + along * std::cos(azimuth) - across * std::sin(azimuth));
        i == 0 ? path.moveTo(at) : path.lineTo(at);
    }
    return path;
}

std::unique_ptr<QwtPlotShapeItem> outline(const QPainterPath& path, const QPen& pen)
{
    auto shape = std::make_unique<QwtPlotShapeItem>();
    shape->setShape(path);
    shape->setPen(pen);
    shape->setBrush(Qt::NoBrush);
    return shape;
}

/// How far from the design point the ellipse is seen; 0 when there is none.
double extentOf(const statistics::ErrorEllipse& ellipse)
{
    const QRectF box =
        std::isfinite(ellipse.semiMajorM) ? ellipsePath(ellipse).boundingRect() : QRectF();
    return std::max({-box.left(), box.right(), -box.top(), box.bottom(), 0.0});
}

/// The same to all sides of the design point.
PlotRanges square(const std::vector<double>& east, const std::vector<double>& north, double limitM,
                  const statistics::ErrorEllipse& ellipse)
{
    std::vector<double> farthest;
    farthest.reserve(east.size());
    for (std::size_t i = 0; i < east.size(); ++i)
        farthest.push_back(std::max(std::fabs(east[i]), std::fabs(north[i])));
    PlotRanges ranges = rangesFromZero(std::move(farthest), {limitM}, kLeastM);
    const double withEllipse = 1.05 * extentOf(ellipse);
    if (withEllipse < kEllipseIsNear * ranges.usual.maxValue())
        ranges.usual = ranges.usual.extend(withEllipse);
    ranges.all = ranges.all.extend(withEllipse);
    const auto both = [](const QwtInterval& range) {
        return QwtInterval(-range.maxValue(), range.maxValue());
    };
    return {both(ranges.usual), both(ranges.all)};
}

} // namespace

OffsetPlot::OffsetPlot(QWidget* parent) : StatisticsPlot(1, parent)
{
    panel(0).setEqualAxes();
}

QString OffsetPlot::caption() const
{
    return tr("Offsets from the design");
}

void OffsetPlot::fill()
{
    VerdictClasses verdicts(look());
    std::vector<PlotMark> marks;
    std::vector<double> east;
    std::vector<double> north;
    const std::vector<std::uint32_t> first = data().firstPlaces();
    marks.reserve(first.size());
    for (const std::uint32_t place : first) {
        const statistics::Observation& result = data().result(place);
        if (!isShown(result.eastM) || !isShown(result.northM))
            continue;
        marks.push_back({result.eastM, result.northM, place, verdicts.colorOf(result)});
        east.push_back(result.eastM);
        north.push_back(result.northM);
    }
    if (marks.empty())
        return setEmpty(tr("None of the results has a design position."));
    const std::size_t shown = marks.size();
    const double limitM = data().sample->limits.designHorizontalM;
    panel(0).setAxes(PlotScale::Number, tr("East (m)"), tr("North (m)"));
    const statistics::ErrorEllipse ellipse =
        statistics::errorEllipseOf(*data().sample, data().places);
    const PlotRanges ranges = square(east, north, limitM, ellipse);
    panel(0).setRanges(ranges, ranges);
    panel(0).addHorizontal(0, QPen(look().faint, 0));
    panel(0).addVertical(0, QPen(look().faint, 0));
    panel(0).add(std::make_unique<MarkSeries>(std::move(marks), verdicts.colors(), selection(),
                                              look().selected, look().text));
    for (const auto& [color, text] : verdicts.legend())
        addLegend(PlotLegend::Sign::Disc, color, text);
    if (limitM > 0)
        addCircle(limitM);
    setNote(tr("Results: %1, without a design position: %2.")
                .arg(lum::groupedNumber(shown), lum::groupedNumber(first.size() - shown)),
            addEllipse(ellipse));
}

void OffsetPlot::addCircle(double radiusM)
{
    QPainterPath circle;
    circle.addEllipse(QPointF(0, 0), radiusM, radiusM);
    panel(0).addPlain(outline(circle, QPen(look().limit, dpi_scaled(1.5), Qt::DashLine)),
                      kOverData);
    addLegend(PlotLegend::Sign::DashedLine, look().limit,
              tr("limit: %1 m").arg(shortText(radiusM)));
}

QString OffsetPlot::addEllipse(const statistics::ErrorEllipse& ellipse)
{
    if (!std::isfinite(ellipse.semiMajorM))
        return {};
    panel(0).addPlain(outline(ellipsePath(ellipse), QPen(look().figure, dpi_scaled(2.0))),
                      kOverData);
    addLegend(PlotLegend::Sign::Line, look().figure,
              tr("95 % ellipse: %1 m by %2 m")
                  .arg(numberText(ellipse.semiMajorM, 3), numberText(ellipse.semiMinorM, 3)));
    return tr("The ellipse holds 95 % of normally spread offsets: its middle is their mean, its "
              "half axes are the roots of 5.991 times the eigenvalues of their covariance matrix "
              "(with n - 1); 5.991 is the 95 % value of chi-square with two degrees of freedom. "
              "The longer axis points to %1%2.")
        .arg(numberText(ellipse.azimuthDeg, 0), QChar(0x00B0));
}
