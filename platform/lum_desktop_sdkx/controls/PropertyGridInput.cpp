#include "lum_desktop_sdkx/controls/PropertyGridInput.h"

#include "basalt_utilities/Numbers.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

using Editor = PropertyGridRow::Editor;

struct PropertyGrid
{
    Q_DECLARE_TR_FUNCTIONS(PropertyGrid)
};

bool isNumeric(const PropertyGridRow& row)
{
    return row.editor == Editor::Number || row.editor == Editor::Integer ||
           row.editor == Editor::Angle;
}

QString withUnit(const QString& number, const PropertyGridRow& row)
{
    if (row.unit.isEmpty() || number.isEmpty())
        return number;
    static const QStringList kSticking{QStringLiteral("\u00b0"), QStringLiteral("\u2033"),
                                       QStringLiteral("%")};
    const bool isSticking = kSticking.contains(row.unit);
    return isSticking ? number + row.unit : number + QLatin1Char(' ') + row.unit;
}

QString limit(double value, const PropertyGridRow& row)
{
    return withUnit(QString::fromStdString(basalt::formatShortest(value)), row);
}

/// Whole sentences, since translations cannot be built from parts.
QString wantedNumber(const PropertyGridRow& row)
{
    const bool whole = row.editor == Editor::Integer;
    if (row.editor == Editor::Angle && row.minimum && row.maximum)
        return PropertyGrid::tr("Enter an angle from %1 to %2, such as 30.5 or 30 30 00.")
            .arg(limit(*row.minimum, row), limit(*row.maximum, row));
    if (row.minimum && row.maximum)
        return (whole ? PropertyGrid::tr("Enter a whole number from %1 to %2.")
                      : PropertyGrid::tr("Enter a number from %1 to %2."))
            .arg(limit(*row.minimum, row), limit(*row.maximum, row));
    if (row.minimum)
        return (whole ? PropertyGrid::tr("Enter a whole number of at least %1.")
                      : PropertyGrid::tr("Enter a number of at least %1."))
            .arg(limit(*row.minimum, row));
    if (row.maximum)
        return (whole ? PropertyGrid::tr("Enter a whole number of at most %1.")
                      : PropertyGrid::tr("Enter a number of at most %1."))
            .arg(limit(*row.maximum, row));
    if (!row.unit.isEmpty())
        return (whole ? PropertyGrid::tr("Enter a whole number (%1).")
                      : PropertyGrid::tr("Enter a number (%1)."))
            .arg(row.unit);
    return whole ? PropertyGrid::tr("Enter a whole number.") : PropertyGrid::tr("Enter a number.");
}

bool isInRange(const PropertyGridRow& row, const QString& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber); // in the C locale, not in that of the desktop
    if (isNumber && row.editor == Editor::Integer)
        (void)value.toLongLong(&isNumber);
    return isNumber && std::isfinite(number) && !(row.minimum && number < *row.minimum) &&
           !(row.maximum && number > *row.maximum);
}

int decimalsOf(const QString& number)
{
    const int point = number.indexOf(QLatin1Char('.'));
    if (point < 0)
        return 0;
    const auto* const first = number.cbegin() + point + 1;
    const auto* const last =
        std::find_if_not(first, number.cend(), [](QChar c) { return c.isDigit(); });
    return static_cast<int>(last - first);
}

/// Whether a comma can only be the decimal point, since the row takes no thousands.
bool isBelowThousand(const PropertyGridRow& row)
{
    return row.editor == Editor::Number && row.minimum && row.maximum && *row.minimum > -1000 &&
           *row.maximum < 1000;
}

QString withPoint(const PropertyGridRow& row, const QString& typed)
{
    QString number = typed.trimmed();
    const QChar comma = QLatin1Char(',');
    const bool isPoint = isBelowThousand(row) || QLocale().decimalPoint() == comma;
    if (isPoint && number.count(comma) == 1 && !number.contains(QLatin1Char('.')))
        number.replace(comma, QLatin1Char('.'));
    return number;
}

} // namespace

PropertyGridInput readPropertyGridInput(const PropertyGridRow& row, const QString& typed)
{
    if (!isNumeric(row))
        return {typed, {}};
    QString number = withPoint(row, typed);
    bool isNumber = false;
    (void)number.toDouble(&isNumber);
    const auto angle = row.editor == Editor::Angle && !isNumber ? readAngle(number, row.letters)
                                                                : std::optional<double>();
    if (angle) {
        number = QString::fromStdString(basalt::formatShortest(*angle));
        return {number, isInRange(row, number) ? QString() : wantedNumber(row)};
    }
    QString fault = isInRange(row, number) ? QString() : wantedNumber(row);
    if (fault.isEmpty() && row.decimals && decimalsOf(number) > *row.decimals)
        fault = PropertyGrid::tr("Digits allowed after the point: %n.", nullptr, *row.decimals);
    return {number, fault};
}

QString propertyGridFault(const PropertyGridRow& row, const QString& value)
{
    return !isNumeric(row) || isInRange(row, value) ? QString() : wantedNumber(row);
}

QString withoutExponent(const PropertyGridRow& row, const QString& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    const bool isPlain = !value.contains(QLatin1Char('e'), Qt::CaseInsensitive);
    if (!isNumeric(row) || !isNumber || isPlain || std::abs(number) < 1 || std::abs(number) >= 1e15)
        return value;
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}

QString shownPropertyGridValue(const PropertyGridRow& row, const QString& value)
{
    if (row.editor == Editor::Flag)
        return {};
    for (const PropertyGridChoice& choice : row.choices) {
        if (choice.value == value)
            return choice.caption;
    }
    return withUnit(withoutExponent(row, value), row);
}
