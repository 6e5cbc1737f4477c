#include "design/DesignFaults.h"

#include "basalt_utilities/IDictionary.h"
#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>

#include <cmath>
#include <limits>

namespace {

constexpr double kLongestDistance = 10'000'000;
constexpr double kLargestCoordinate = 1'000'000'000;
constexpr double kLargestAngle = 360;

QString sentence(const char* text)
{
    return QCoreApplication::translate("DesignFaults", text);
}

QString beyond(double largest)
{
    return sentence(QT_TRANSLATE_NOOP("DesignFaults", "%1: %2 is too large. At most %3."))
        .arg(QStringLiteral("%1"), QStringLiteral("%2"),
             lum::groupedNumber(static_cast<qint64>(largest)));
}

QString realFault(const QString& text, double largest)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber); // in every locale with a decimal point
    if (!isNumber || std::isnan(value))
        return sentence(QT_TRANSLATE_NOOP("DesignFaults", "%1: \"%2\" is not a number."));
    return std::fabs(value) > largest ? beyond(largest) : QString();
}

QString angleFault(const QString& text)
{
    QString fault = realFault(text, kLargestAngle);
    if (fault.isEmpty() && !lum::isSexagesimal(text.toDouble()))
        fault = sentence(QT_TRANSLATE_NOOP(
            "DesignFaults", "%1: %2 has more than 59 minutes or seconds (dd.mmss)."));
    return fault;
}

QString wholeFault(const QString& text, int least, int most)
{
    bool isNumber = false;
    const qint64 value = text.toLongLong(&isNumber);
    if (!isNumber)
        return sentence(QT_TRANSLATE_NOOP("DesignFaults", "%1: \"%2\" is not a whole number."));
    if (value >= least && value <= most)
        return {};
    return sentence(QT_TRANSLATE_NOOP("DesignFaults", "%1: %2 is not between %3 and %4."))
        .arg(QStringLiteral("%1"), QStringLiteral("%2"), lum::groupedNumber(least),
             lum::groupedNumber(most));
}

/// A sentence with %1 for the parameter and %2 for the text; empty without a fault.
QString faultIn(const QString& text, DesignValue value)
{
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    switch (value) {
    case DesignValue::Distance:
        return realFault(text, kLongestDistance);
    case DesignValue::Coordinate:
        return realFault(text, kLargestCoordinate);
    case DesignValue::Angle:
        return angleFault(text);
    case DesignValue::Digits:
        return wholeFault(text, 0, kMostDigits);
    case DesignValue::Switch:
        return wholeFault(text, 0, 1);
    default:
        return wholeFault(text, kLeast, kMost);
    }
}

/// The numbers of the lines of a grid, or those of the points of a line.
struct Numbers
{
    DesignField stepField;
    DesignField endField;
    std::int64_t first;
    std::int64_t end;
    std::int64_t step;
};

std::array<Numbers, 2> numbersOf(const DesignGrid& grid)
{
    return {Numbers{DesignField::LineStep, DesignField::LineEnd, grid.firstLineNumber(),
                    grid.lineEnd, grid.lineStep},
            Numbers{DesignField::PointStep, DesignField::PointEnd, grid.firstPointNumber(),
                    grid.pointEnd, grid.pointStep}};
}

DesignFault faultAt(GridKind kind, DesignField field, const QString& text)
{
    return {kind, field, text.arg(designParameter(kind, field).name())};
}

std::optional<DesignFault> stepFault(GridKind kind, const Numbers& numbers)
{
    if (numbers.step == 0) {
        DesignFault fault =
            faultAt(kind, numbers.stepField,
                    sentence(QT_TRANSLATE_NOOP("DesignFaults", "%1: a step of 0 is not allowed.")));
        fault.isZeroStep = true;
        return fault;
    }
    if (numbers.step > 0 || numbers.first > numbers.end)
        return {};
    const QString text = sentence(QT_TRANSLATE_NOOP(
        "DesignFaults", "%1: with a step of %2 the numbers from %3 never reach %4."));
    return faultAt(kind, numbers.stepField,
                   text.arg(QStringLiteral("%1"), QString::number(numbers.step),
                            QString::number(numbers.first), QString::number(numbers.end)));
}

bool isWrittenAlike(std::int64_t number, int digits, int otherDigits)
{
    return digits == otherDigits ||
           static_cast<int>(std::to_string(number).size()) >= std::max(digits, otherDigits);
}

/// How many numbers are written alike in both.
std::int64_t sharedNumbers(const Numbers& one, int digits, const Numbers& other, int otherDigits)
{
    std::int64_t count = 0;
    const std::int64_t end = std::min(one.end, other.end);
    for (std::int64_t number = one.first; number <= end; number += one.step) {
        const bool isInBoth = number >= other.first && (number - other.first) % other.step == 0;
        count += isInBoth && isWrittenAlike(number, digits, otherDigits) ? 1 : 0;
    }
    return count;
}

} // namespace

std::optional<DesignFault> faultOf(const DesignParameter& parameter, const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return faultAt(parameter.kind, parameter.field,
                       sentence(QT_TRANSLATE_NOOP("DesignFaults", "%1: there is no value.")));
    const QString fault = faultIn(trimmed, parameter.value);
    if (!fault.isEmpty())
        return DesignFault{parameter.kind, parameter.field, fault.arg(parameter.name(), trimmed)};
    if (parameter.value == DesignValue::Step && trimmed.toLongLong() == 0)
        return stepFault(parameter.kind, {parameter.field, parameter.field, 0, 0, 0});
    return {};
}

std::optional<DesignFault> faultOf(const DesignGrid& grid)
{
    for (const Numbers& numbers : numbersOf(grid)) {
        if (auto fault = stepFault(grid.kind, numbers))
            return fault;
    }
    if (grid.pointCount() <= kMostDesignPoints)
        return {};
    const bool hasMoreLines = grid.lineCount() > grid.pointsALine();
    const QString text = sentence(QT_TRANSLATE_NOOP(
        "DesignFaults", "%1: the grid would have %2 lines x %3 points. At most %4 points in all."));
    return faultAt(grid.kind, hasMoreLines ? DesignField::LineEnd : DesignField::PointEnd,
                   text.arg(QStringLiteral("%1"), lum::groupedNumber(grid.lineCount()),
                            lum::groupedNumber(grid.pointsALine()),
                            lum::groupedNumber(static_cast<qint64>(kMostDesignPoints))));
}

std::vector<DesignFault> faultsOf(const IDictionary& parameters, GridKind kind)
{
    std::vector<DesignFault> faults;
    for (const DesignParameter& parameter : designParameters()) {
        if (parameter.kind != kind)
            continue;
        const auto text = parameters.text(parameter.key, parameter.fallback);
        if (auto fault = faultOf(parameter, lum::toQString(text)))
            faults.push_back(std::move(*fault));
    }
    if (faults.empty()) {
        if (auto fault = faultOf(DesignGrid::from(parameters, kind)))
            faults.push_back(std::move(*fault));
    }
    return faults;
}

std::optional<DesignFault> emptinessOf(const DesignGrid& grid)
{
    for (const Numbers& numbers : numbersOf(grid)) {
        if (numbers.first <= numbers.end)
            continue;
        const QString text = sentence(
            QT_TRANSLATE_NOOP("DesignFaults", "%1: %2 is below the first number, %3. No points."));
        return faultAt(grid.kind, numbers.endField,
                       text.arg(QStringLiteral("%1"), QString::number(numbers.end),
                                QString::number(numbers.first)));
    }
    return {};
}

std::int64_t sharedPoints(const DesignGrid& one, const DesignGrid& other)
{
    if (one.pointCount() == 0 || other.pointCount() == 0)
        return 0;
    const auto numbers = numbersOf(one);
    const auto others = numbersOf(other);
    return sharedNumbers(numbers[0], one.lineDigits, others[0], other.lineDigits) *
           sharedNumbers(numbers[1], one.pointDigits, others[1], other.pointDigits);
}
