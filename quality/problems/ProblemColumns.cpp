#include "quality/problems/ProblemColumns.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace {

using Zone = basalt::LocalTimes;

constexpr std::array kSeverities{"note", "warning", "error"};
constexpr std::array kSeverityTexts{QT_TRANSLATE_NOOP("ProblemColumns", "Note"),
                                    QT_TRANSLATE_NOOP("ProblemColumns", "Warning"),
                                    QT_TRANSLATE_NOOP("ProblemColumns", "Error")};

QString translated(const char* text)
{
    return QCoreApplication::translate("ProblemColumns", text);
}

QString number(const ProblemKind& kind, double value)
{
    return std::isnan(value) ? QString()
                             : QString::fromStdString(basalt::formatFixed(value, kind.decimals));
}

template <StoredText Problem::*kMember>
QString storedText(const Problem& problem, Zone& /*zone*/)
{
    return lum::toQString(problem.*kMember);
}

QString point(const Problem& problem, Zone& /*zone*/)
{
    return lum::toQString(shownPointNumber(problem));
}

template <double Problem::*kMember>
QString shownValue(const Problem& problem, Zone& /*zone*/)
{
    return problemValueText(*problem.kind, problem.*kMember);
}

template <double Problem::*kMember>
QString plainValue(const Problem& problem, Zone& /*zone*/)
{
    return number(*problem.kind, problem.*kMember);
}

/// A number without its unit, or the text that stands for it.
template <double Problem::*kMember>
QString spreadsheetValue(const Problem& problem, Zone& zone)
{
    return (problem.kind->valueText == nullptr ? plainValue<kMember> : shownValue<kMember>)(problem,
                                                                                            zone);
}

QString what(const Problem& problem, Zone& /*zone*/)
{
    return problem.kind->what(problem);
}

/// As "yyyy/MM/dd".
QString day(const Problem& problem, Zone& zone)
{
    constexpr int kDaySize = 10;
    std::array<char, Zone::kTextSize> time{};
    const char* const end =
        problem.timeMs == 0 ? time.data() : zone.write(time.data(), problem.timeMs);
    return end == time.data() ? QString() : QString::fromLatin1(time.data(), kDaySize);
}

// The whole table, in the order of `ProblemField`.
constexpr std::array kColumns{
    ProblemColumn{
        QT_TRANSLATE_NOOP("ProblemColumns", "Severity"),
        [](const Problem& problem, Zone& /*zone*/) { return severityText(problem.kind->severity); },
        [](const Problem& problem, Zone& /*zone*/) {
            return QString::fromLatin1(
                kSeverities[static_cast<std::size_t>(problem.kind->severity)]);
        }},
    ProblemColumn{
        QT_TRANSLATE_NOOP("ProblemColumns", "Kind"),
        [](const Problem& problem, Zone& /*zone*/) { return problem.kind->captionText(); },
        [](const Problem& problem, Zone& /*zone*/) {
            return QString::fromLatin1(problem.kind->name);
        }},
    ProblemColumn{QT_TRANSLATE_NOOP("ProblemColumns", "Line"), storedText<&Problem::line>,
                  storedText<&Problem::line>},
    ProblemColumn{QT_TRANSLATE_NOOP("ProblemColumns", "Point"), point, point},
    ProblemColumn{QT_TRANSLATE_NOOP("ProblemColumns", "What"), what, what},
    ProblemColumn{QT_TRANSLATE_NOOP("ProblemColumns", "Value"), shownValue<&Problem::value>,
                  plainValue<&Problem::value>, spreadsheetValue<&Problem::value>},
    ProblemColumn{QT_TRANSLATE_NOOP("ProblemColumns", "Limit"), shownValue<&Problem::limit>,
                  plainValue<&Problem::limit>, spreadsheetValue<&Problem::limit>},
    ProblemColumn{QT_TRANSLATE_NOOP("ProblemColumns", "Rover"), storedText<&Problem::rover>,
                  storedText<&Problem::rover>},
    ProblemColumn{QT_TRANSLATE_NOOP("ProblemColumns", "Surveyor"), storedText<&Problem::surveyor>,
                  storedText<&Problem::surveyor>},
    ProblemColumn{QT_TRANSLATE_NOOP("ProblemColumns", "Day"), day, day},
};

} // namespace

QString ProblemColumn::captionText() const
{
    return translated(caption);
}

std::string_view shownPointNumber(const Problem& problem)
{
    return problem.isDesign ? problem.point.view() : writtenPointNumber(problem.point);
}

std::span<const ProblemColumn> problemColumns()
{
    return kColumns;
}

QString problemValueText(const ProblemKind& kind, double value)
{
    if (std::isnan(value))
        return {};
    if (kind.valueText != nullptr)
        return kind.valueText(value);
    const QString text = number(kind, value);
    return *kind.unit == 0 ? text : text + QLatin1Char(' ') + QString::fromUtf8(kind.unit);
}

QString severityText(Severity severity)
{
    return translated(kSeverityTexts[static_cast<std::size_t>(severity)]);
}
