#include "design/ui/DesignTexts.h"

#include "design/DesignFaults.h"
#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPolygonF>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMetresAKm = 1000;
constexpr double kSquareMetresAKm2 = 1e6;
constexpr double kLeastKm2 = 0.01;
constexpr int kSecondDigits = 2;

struct DesignText
{
    Q_DECLARE_TR_FUNCTIONS(DesignText)
};

lum::LengthUnit unit()
{
    return lum::lengthUnitOf(get_project_coord_transform().parameters());
}

QString unitSymbol()
{
    return lum::toQString(lum::symbolOf(unit()));
}

QString shortNumber(double value, int decimals)
{
    QLocale english(QLocale::English);
    QString text = english.toString(value, 'f', decimals);
    while (text.contains(QLatin1Char('.')) &&
           (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char('.'))))
        text.chop(1);
    return text;
}

QString area(double gridArea)
{
    const double metres = unit().metres;
    const double squareMetres = gridArea * metres * metres;
    if (squareMetres >= kLeastKm2 * kSquareMetresAKm2)
        return DesignText::tr("%1 km²").arg(shortNumber(squareMetres / kSquareMetresAKm2, 2));
    return DesignText::tr("%1 m²").arg(shortNumber(squareMetres, 0));
}

/// A number with zeros before it, as `generate` writes it.
QString padded(std::int64_t number, int digits)
{
    std::string text;
    appendDesignNumber(text, number, digits);
    return lum::toQString(text);
}

/// An azimuth, folded into a circle, as 45°30'00.00".
QString angle(double dms)
{
    double degrees = std::fmod(convetFromAngle(dms), 360);
    if (degrees < 0)
        degrees += 360;
    QString text = lum::toQString(lum::angleText(degrees, 4 + kSecondDigits));
    if (text.startsWith(QLatin1String("360"))) // rounded up
        text.remove(0, 2);
    const int point = text.indexOf(QLatin1Char('.'));
    return QStringLiteral("%1°%2'%3.%4\"")
        .arg(text.left(point), text.mid(point + 1, 2), text.mid(point + 3, 2), text.mid(point + 5));
}

QString hintOf(DesignField field)
{
    switch (field) {
    case DesignField::LineDistance:
        return DesignText::tr("Distance from a line to the next, in %1").arg(unitSymbol());
    case DesignField::PointDistance:
        return DesignText::tr("Distance from a point to the next on its line, in %1")
            .arg(unitSymbol());
    case DesignField::LineStart:
    case DesignField::PointStart:
        return DesignText::tr("The lowest number of the survey");
    case DesignField::LineEnd:
    case DesignField::PointEnd:
        return DesignText::tr("The highest number that may be given");
    case DesignField::LineStep:
    case DesignField::PointStep:
        return DesignText::tr("From a number to the next; the distance does not change with it");
    case DesignField::LineDigits:
    case DesignField::PointDigits:
        return DesignText::tr(
            "Digits of a number: 4 writes 10 as 0010. Longer numbers stay whole.");
    case DesignField::FirstLine:
        return DesignText::tr("Generation begins with this line, at the start position");
    case DesignField::FirstPoint:
        return DesignText::tr("Each line begins with this point");
    case DesignField::StartNorth:
    case DesignField::StartEast:
        return DesignText::tr("Position of the first point that is generated, in %1")
            .arg(unitSymbol());
    case DesignField::Azimuth:
        return DesignText::tr("Direction in which the point numbers grow, clockwise from north");
    case DesignField::Reversal:
        return DesignText::tr("The next line lies to the left of that direction, not to the right");
    }
    return {};
}

/// 0 for lines that run along each other, 1 for such that are square to each other.
std::optional<int> crossing(const DesignGrid& one, const DesignGrid& other)
{
    const double turn = Angle2Radian(one.azimuth) - Angle2Radian(other.azimuth);
    constexpr double kMostAside = 0.02; // a little more than a degree
    if (std::fabs(std::sin(turn)) < kMostAside)
        return 0;
    if (std::fabs(std::cos(turn)) < kMostAside)
        return 1;
    return {};
}

QRectF extentOf(const GridOutline& outline)
{
    QPolygonF corners;
    for (const auto& line : {outline.firstLine, outline.lastLine}) {
        for (const DesignPlace& place : line)
            corners << QPointF(place[1], place[0]);
    }
    return corners.boundingRect();
}

/// How far two grids lie from each other when that is more than the larger one's size; else 0.
double strangeGap(const DesignGrid& one, const DesignGrid& other)
{
    const auto first = GridOutline::of(one);
    const auto second = GridOutline::of(other);
    if (!first || !second)
        return 0;
    const QRectF a = extentOf(*first);
    const QRectF b = extentOf(*second);
    const double aside = std::max({a.left() - b.right(), b.left() - a.right(), 0.0});
    const double above = std::max({a.top() - b.bottom(), b.top() - a.bottom(), 0.0});
    const double gap = std::hypot(aside, above);
    const double size =
        std::max(std::hypot(a.width(), a.height()), std::hypot(b.width(), b.height()));
    return gap > size ? gap : 0;
}

} // namespace

namespace DesignTexts {

QString hint(const DesignParameter& parameter)
{
    return hintOf(parameter.field);
}

QString lines(const DesignGrid& grid)
{
    const std::int64_t first = grid.firstLineNumber();
    const std::int64_t last = first + (grid.lineCount() - 1) * grid.lineStep;
    return DesignText::tr("%1 lines: %2 to %3")
        .arg(lum::groupedNumber(grid.lineCount()), padded(first, grid.lineDigits),
             padded(last, grid.lineDigits));
}

QString points(const DesignGrid& grid)
{
    const std::int64_t first = grid.firstPointNumber();
    const std::int64_t last = first + (grid.pointsALine() - 1) * grid.pointStep;
    return DesignText::tr("%1 points: %2 to %3")
        .arg(lum::groupedNumber(grid.pointsALine()), padded(first, grid.pointDigits),
             padded(last, grid.pointDigits));
}

QString direction(const DesignGrid& grid)
{
    return (grid.isReversed ? DesignText::tr("Points run towards %1, lines follow to the left.")
                            : DesignText::tr("Points run towards %1, lines follow to the right."))
        .arg(angle(grid.azimuth));
}

QString size(const DesignGrid& grid)
{
    const auto outline = GridOutline::of(grid);
    return (grid.kind == GridKind::Receiver
                ? DesignText::tr("%1 receiver lines x %2 points = %3; area %4")
                : DesignText::tr("%1 source lines x %2 points = %3; area %4"))
        .arg(lum::groupedNumber(grid.lineCount()), lum::groupedNumber(grid.pointsALine()),
             lum::groupedNumber(static_cast<std::int64_t>(grid.pointCount())),
             area(outline ? outline->area : 0));
}

std::optional<DesignPlace> binSize(const DesignGrid& receivers, const DesignGrid& sources)
{
    const auto square = crossing(receivers, sources);
    if (!square)
        return {};
    const double along = *square ? sources.lineDistance : sources.pointDistance;
    const double across = *square ? sources.pointDistance : sources.lineDistance;
    return DesignPlace{std::min(std::fabs(receivers.pointDistance), std::fabs(along)) / 2,
                       std::min(std::fabs(receivers.lineDistance), std::fabs(across)) / 2};
}

QString bins(const DesignGrid& receivers, const DesignGrid& sources)
{
    const auto bin = binSize(receivers, sources);
    return bin ? DesignText::tr("Bins %1 x %2 %3, along and across the receiver lines")
                     .arg(shortNumber((*bin)[0], 3), shortNumber((*bin)[1], 3), unitSymbol())
               : QString();
}

QString loss(std::size_t lines, std::size_t points)
{
    if (points == 0)
        return DesignText::tr("The project has no design points that would be replaced.");
    return DesignText::tr("%1 design points of %2 lines will be replaced, by Calc R and Calc S "
                          "too. Survey results stay.")
        .arg(lum::groupedNumber(points), lum::groupedNumber(lines));
}

QString comparison(const DesignGrid& receivers, const DesignGrid& sources)
{
    QStringList sentences;
    if (const double gapM = strangeGap(receivers, sources) * unit().metres; gapM > 0)
        sentences
            << DesignText::tr("The grids lie %1 km apart.").arg(shortNumber(gapM / kMetresAKm, 1));
    if (const std::int64_t count = sharedPoints(receivers, sources); count > 0)
        sentences << DesignText::tr("Points with the same number in both grids: %1. Of these, OK "
                                    "generates the source points alone.")
                         .arg(lum::groupedNumber(count));
    return sentences.join(QLatin1Char(' '));
}

} // namespace DesignTexts
