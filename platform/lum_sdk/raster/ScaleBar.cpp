#include "lum_sdk/raster/ScaleBar.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/ShownUnit.h"
#include "lum_sdk/Transform.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <string>

namespace lum {

namespace {

constexpr double kEarthM = 4e7; // circumference of the earth

// screen pixels
constexpr double kLongest = 160;
constexpr int kSmallestScreen = 200;
constexpr int kMargin = 12;
constexpr int kPadding = 6;
constexpr int kThickness = 6;

constexpr int kPaperAlpha = 210; // lets a little of the map show through

/// Draws the bar at the left of `paper`: its left half black, its right half white.
void drawBar(QPainter& painter, const QRect& paper, double length)
{
    // Sharp ends on a screen, the true length on paper.
    const bool isScreen = !painter.worldTransform().isScaling();
    const auto drawn = [&](double pixels) { return isScreen ? std::round(pixels) : pixels; };
    const double top = paper.center().y() - kThickness / 2.0 + 0.5;
    const QRectF bar(paper.left() + kPadding + 0.5, top, drawn(length), kThickness);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::white);
    painter.drawRect(bar);
    painter.setBrush(Qt::black);
    painter.drawRect(QRectF(bar.topLeft(), QSizeF(drawn(length / 2), kThickness)));
}

} // namespace

double roundLength(double limit)
{
    const double power = std::pow(10, std::floor(std::log10(limit)));
    for (const double step : {5.0, 2.0}) {
        if (step * power <= limit)
            return step * power;
    }
    return power;
}

QString lengthText(double length, const LengthUnit& unit)
{
    const bool isKilometres = isMetre(unit) && length >= 1000;
    const std::string number = basalt::formatShortest(isKilometres ? length / 1000 : length);
    const std::string symbol = isKilometres ? "km" : symbolOf(unit);
    return QString::fromStdString(number + ' ' + symbol);
}

QRect drawScaleBar(QPainter& painter, const Transform& view, const ShownUnit& unit)
{
    const QSize screen = view.size();
    if (screen.width() < kSmallestScreen || screen.height() < kSmallestScreen / 2)
        return {};
    const double longest = std::min(kLongest, screen.width() / 3.0);
    if (longest * view.GetScale() * unit.grid.metres > kEarthM)
        return {};
    const double unitsPerPixel = unit.toShown(view.GetScale());
    const double length = roundLength(longest * unitsPerPixel);
    const QString text = lengthText(length, unit.shown);

    painter.save();
    const QSize textSize = painter.fontMetrics().size(Qt::TextSingleLine, text);
    const double pixels = length / unitsPerPixel;
    const QSize paperSize(static_cast<int>(std::round(pixels)) + textSize.width() + 3 * kPadding,
                          textSize.height() + kPadding);
    const QRect paper(QPoint(kMargin, screen.height() - kMargin - paperSize.height()), paperSize);
    painter.fillRect(paper, QColor(255, 255, 255, kPaperAlpha));
    drawBar(painter, paper, pixels);
    painter.drawText(paper.adjusted(0, 0, -kPadding, 0), Qt::AlignRight | Qt::AlignVCenter, text);
    painter.restore();
    return paper;
}

} // namespace lum
