#include "exchange/CoordAgreementText.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/Numbers.h"
#include "exchange/CoordAgreement.h"
#include "exchange/CoordCompare.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>

namespace {

using Plane = CoordAgreement::Plane;
using Height = CoordAgreement::Height;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CoordAgreement)
};

QString unitOf(const IDictionary& parameters)
{
    return lum::toQString(lum::symbolOf(lum::lengthUnitOf(parameters)));
}

QString fixed(double value, int decimals)
{
    return lum::toQString(
        basalt::formatFixed(withoutMinusZero(value, std::pow(10, -decimals)), decimals));
}

/// "+1.250 m"
QString withSign(double value, const QString& unit)
{
    const QString sign = withoutMinusZero(value) > 0 ? QStringLiteral("+") : QString();
    return sign + fixed(value, 3) + QLatin1Char(' ') + unit;
}

QString range(double least, double largest, const QString& unit)
{
    return Texts::tr("%1 to %2 %3").arg(fixed(least, 3), fixed(largest, 3), unit);
}

QString shiftText(const CoordAgreement& agreement, const QString& unit)
{
    return Texts::tr("north %1, east %2")
        .arg(withSign(agreement.north, unit), withSign(agreement.east, unit));
}

/// Whether the systems are farther apart than local adjustments bring them.
bool isFar(const CoordAgreement& agreement)
{
    constexpr double kShift = 1000; // metres or feet
    constexpr double kSeconds = 600;
    constexpr double kPpm = 1000;
    return std::hypot(agreement.north, agreement.east) > kShift ||
           std::abs(agreement.rotationSeconds) > kSeconds || std::abs(agreement.scalePpm) > kPpm;
}

QString turnedText(const CoordAgreement& agreement, const QString& unit)
{
    const QString text =
        isFar(agreement)
            ? Texts::tr("A wrong datum or projection: the survey is turned %1 by %2″ and "
                        "scaled by %3 ppm, and its middle shifted by %4; %5 remain")
            : Texts::tr("The survey is turned %1 by %2″ and scaled by %3 ppm, and its "
                        "middle shifted by %4; %5 remain");
    const QString direction =
        agreement.rotationSeconds < 0 ? Texts::tr("counterclockwise") : Texts::tr("clockwise");
    return text.arg(direction, fixed(std::abs(agreement.rotationSeconds), 2),
                    fixed(agreement.scalePpm, 2), shiftText(agreement, unit),
                    fixed(agreement.remains, 3) + QLatin1Char(' ') + unit);
}

QString planeText(const CoordAgreement& agreement, const QString& unit, const QString& storedUnit)
{
    if (unit != storedUnit)
        return Texts::tr("The positions on the plane are in different units, %1 here and %2 in the "
                         "file")
            .arg(unit, storedUnit);
    switch (agreement.plane) {
    case Plane::Same:
        return Texts::tr("North and east are the same in both systems");
    case Plane::Shift:
        return Texts::tr("A constant shift on the plane: %1").arg(shiftText(agreement, unit));
    case Plane::Turned:
        return turnedText(agreement, unit);
    case Plane::Other:
        break;
    }
    return Texts::tr("A wrong datum or projection: positions on the plane differ by %1, and shift, "
                     "rotation and scale leave %2 of it")
        .arg(range(agreement.leastPlane, agreement.largestPlane, unit),
             fixed(agreement.remains, 3) + QLatin1Char(' ') + unit);
}

QString heightText(const CoordAgreement& agreement)
{
    const QString metre = QStringLiteral("m");
    switch (agreement.height) {
    case Height::Same:
        return Texts::tr("the heights are the same");
    case Height::Shift:
        return Texts::tr("the heights differ by a constant %1").arg(withSign(agreement.up, metre));
    case Height::Other:
        break;
    }
    return Texts::tr("the heights differ by %1")
        .arg(range(agreement.leastUp, agreement.largestUp, metre));
}

/// The heights alone differ.
QString heightsAlone(const CoordAgreement& agreement)
{
    const QString metre = QStringLiteral("m");
    if (agreement.height == Height::Shift)
        return Texts::tr(
                   "Only the heights differ, by a constant %1: another geoid, or another kind "
                   "of height.")
            .arg(withSign(agreement.up, metre));
    return Texts::tr("Only the heights differ, by %1: another geoid or height fitting.")
        .arg(range(agreement.leastUp, agreement.largestUp, metre));
}

QString explanation(const CoordAgreement& agreement, const QString& unit, const QString& storedUnit)
{
    const bool isPlaneSame = unit == storedUnit && agreement.plane == Plane::Same;
    if (isPlaneSame && agreement.height == Height::Same)
        return Texts::tr("Both systems give the same positions.");
    if (isPlaneSame)
        return heightsAlone(agreement);
    return Texts::tr("%1; %2.").arg(planeText(agreement, unit, storedUnit), heightText(agreement));
}

QString strangersText(const CoordCompare& comparison, const CoordAgreement& agreement)
{
    const SurveyPoint& farthest = comparison.record(agreement.farthestRow);
    return QLatin1Char('\n') +
           Texts::tr("Results that do not follow this: %1, by up to %2 m (line %3, point %4).")
               .arg(lum::groupedNumber(agreement.strangers), fixed(agreement.farthest, 3),
                    lum::toQString(farthest.lineNumber), lum::toQString(farthest.pointNumber));
}

QString firstMessage(const CoordCompare& comparison)
{
    for (std::size_t row = 0; row < comparison.size(); ++row) {
        if (comparison.isFailed(row))
            return comparison.message(row);
    }
    return Texts::tr("Their coordinates are not numbers.");
}

} // namespace

QString agreementText(const CoordCompare& comparison, const CoordAgreement& agreement,
                      const IDictionary& current, const IDictionary& file)
{
    const QString unit = unitOf(current);
    const QString storedUnit = file.size() == 0 ? unit : unitOf(file);
    const std::size_t left = comparison.size() - agreement.count;
    QString untold = left == 0 ? QString()
                               : Texts::tr("Results that could not be compared: %1. The first: %2")
                                     .arg(lum::groupedNumber(left), firstMessage(comparison));
    if (comparison.size() == 0)
        return Texts::tr("The file has no results to compare.");
    if (agreement.count == 0)
        return untold;
    QString text = explanation(agreement, unit, storedUnit);
    if (agreement.strangers != 0)
        text += strangersText(comparison, agreement);
    return untold.isEmpty() ? text : text + QLatin1Char('\n') + untold;
}
