#include "quality/problems/ShiftProblems.h"

#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "quality/problems/GroupDifferences.h"
#include "quality/problems/GroupShifts.h"

#include <QCoreApplication>
#include <QDate>

#include <array>
#include <cmath>

namespace {

using Cause = GroupShift::Cause;
using Evidence = GroupShift::Evidence;

// --- the sentences ---

QString translated(const char* text)
{
    return QCoreApplication::translate("ShiftProblems", text);
}

/// " on 2026/05/03" behind what is shifted.
QString onDays(const QString& what, const GroupShift& shift)
{
    if (shift.day == statistics::KeyValue::kNoNumber)
        return what;
    if (shift.day == shift.lastDay)
        return translated(QT_TRANSLATE_NOOP("ShiftProblems", "%1 on %2"))
            .arg(what, dayText(shift.day));
    return translated(QT_TRANSLATE_NOOP("ShiftProblems", "%1 from %2 to %3"))
        .arg(what, dayText(shift.day), dayText(shift.lastDay));
}

/// "base B3 on 2026/05/03".
QString groupText(const GroupShift& shift)
{
    if (shift.cause == Cause::Survey)
        return onDays(translated(QT_TRANSLATE_NOOP("ShiftProblems", "the survey")), shift);
    const bool isPole = shift.cause == Cause::Pole;
    const std::string& named = isPole ? shift.rover : shift.base;
    const QString name = named.empty()
                             ? translated(QT_TRANSLATE_NOOP("ShiftProblems", "without a name"))
                             : lum::toQString(named);
    return onDays(translated(isPole ? QT_TRANSLATE_NOOP("ShiftProblems", "rover %1")
                                    : QT_TRANSLATE_NOOP("ShiftProblems", "base %1"))
                      .arg(name),
                  shift);
}

QString metres(double length)
{
    return QString::number(std::fabs(length), 'f', 3);
}

/// The wind that a shift lies towards, of eight.
QString windOf(double directionDeg)
{
    constexpr std::array kWinds{QT_TRANSLATE_NOOP("ShiftProblems", "north"),
                                QT_TRANSLATE_NOOP("ShiftProblems", "northeast"),
                                QT_TRANSLATE_NOOP("ShiftProblems", "east"),
                                QT_TRANSLATE_NOOP("ShiftProblems", "southeast"),
                                QT_TRANSLATE_NOOP("ShiftProblems", "south"),
                                QT_TRANSLATE_NOOP("ShiftProblems", "southwest"),
                                QT_TRANSLATE_NOOP("ShiftProblems", "west"),
                                QT_TRANSLATE_NOOP("ShiftProblems", "northwest")};
    constexpr double kSector = 45;
    return translated(
        kWinds[static_cast<std::size_t>(std::lround(directionDeg / kSector)) % kWinds.size()]);
}

/// "1.502 m too high".
QString offsetText(const GroupShift& shift)
{
    QString height =
        translated(shift.heightM > 0 ? QT_TRANSLATE_NOOP("ShiftProblems", "%1 m too high")
                                     : QT_TRANSLATE_NOOP("ShiftProblems", "%1 m too low"))
            .arg(metres(shift.heightM));
    if (!shift.hasPlane())
        return height;
    const QString plane =
        translated(QT_TRANSLATE_NOOP("ShiftProblems", "%1 m too far to the %2 (%3°)"))
            .arg(metres(shift.planeM()), windOf(shift.directionDeg()),
                 QString::number(std::lround(shift.directionDeg()) % 360));
    return shift.hasHeight()
               ? translated(QT_TRANSLATE_NOOP("ShiftProblems", "%1 and %2")).arg(plane, height)
               : plane;
}

/// "All 212 results of base B3 on 2026/05/03 are 1.502 m too high."
QString factText(const GroupShift& shift)
{
    if (shift.evidence == Evidence::Design && shift.shared == shift.results)
        return translated(QT_TRANSLATE_NOOP("ShiftProblems", "All %1 results of %2 are %3."))
            .arg(lum::groupedNumber(shift.results), groupText(shift), offsetText(shift));
    return translated(shift.evidence == Evidence::Design
                          ? QT_TRANSLATE_NOOP("ShiftProblems", "%1 of %2 results of %3 are %4.")
                          : QT_TRANSLATE_NOOP("ShiftProblems",
                                              "%1 of %2 points that were also measured otherwise "
                                              "are %4 in the results of %3."))
        .arg(lum::groupedNumber(shift.shared), lum::groupedNumber(shift.results), groupText(shift),
             offsetText(shift));
}

QString causeText(const GroupShift& shift)
{
    switch (shift.cause) {
    case Cause::Base:
        return translated(
            QT_TRANSLATE_NOOP("ShiftProblems", "The coordinates of the base are wrong."));
    case Cause::Pole:
        return translated(
            QT_TRANSLATE_NOOP("ShiftProblems", "The antenna height of the pole is wrong."));
    case Cause::BaseOrPole:
        if (shift.rover.empty())
            return translated(QT_TRANSLATE_NOOP("ShiftProblems", "The height of the base is wrong, "
                                                                 "or that of the pole."));
        return translated(QT_TRANSLATE_NOOP("ShiftProblems", "The height of the base is wrong, or "
                                                             "that of the pole of rover %1, which "
                                                             "alone has used it."))
            .arg(lum::toQString(shift.rover));
    case Cause::Survey:
        break;
    }
    return translated(QT_TRANSLATE_NOOP("ShiftProblems", "Design and survey are of different "
                                                         "coordinate systems, or every base is "
                                                         "wrong."));
}

QString shiftWhat(const Problem& problem)
{
    const GroupShift shift = GroupShift::fromText(problem.detail);
    return withFollowing(factText(shift) + QLatin1Char(' ') + causeText(shift), problem);
}

QString differenceWhat(const Problem& problem)
{
    const GroupShift mean = GroupShift::fromText(problem.detail);
    return translated(
               mean.evidence == Evidence::Design
                   ? QT_TRANSLATE_NOOP("ShiftProblems", "%1 of %2 results of %3 are %4 on average.")
                   : QT_TRANSLATE_NOOP("ShiftProblems",
                                       "%1 of %2 points that were measured again with %3 are %4 on "
                                       "average, as seen from their first measurement."))
        .arg(lum::groupedNumber(mean.shared), lum::groupedNumber(mean.results), groupText(mean),
             offsetText(mean));
}

// --- finding ---

const ProblemKind& kindOf(Cause cause)
{
    if (cause == Cause::Survey)
        return kSurveyShift;
    return cause == Cause::Pole ? kPoleShift : kBaseShift;
}

bool isMostlyHeight(const GroupShift& shift)
{
    return std::fabs(shift.heightM) > shift.planeM();
}

Problem& add(const ProblemKind& kind, const GroupShift& shift, ProblemList& problems)
{
    Problem& problem = problems.add(kind);
    problem.detail = problems.keep(shift.toText());
    problem.rover = problems.keepOnce(shift.rover);
    problem.timeMs = shift.firstMs;
    problem.count = static_cast<std::uint32_t>(shift.shared);
    problem.value = isMostlyHeight(shift) ? shift.heightM : shift.planeM();
    return problem;
}

std::vector<statistics::MeasuredPair> pairsOf(const FinderInput& input, const ResultSet& misnamed)
{
    auto pairs =
        statistics::resurveyPairs(input.survey(), input.resurveyCode(), input.planeUnitM()).pairs;
    const auto repeats = statistics::repeatPairs(input.survey(), input.planeUnitM()).pairs;
    pairs.insert(pairs.end(), repeats.begin(), repeats.end());
    std::erase_if(pairs, [&](const statistics::MeasuredPair& pair) {
        return misnamed.contains(pair.first) || misnamed.contains(pair.again);
    });
    return pairs;
}

} // namespace

constexpr ProblemKind kBaseShift{.name = "base_shift",
                                 .caption =
                                     QT_TRANSLATE_NOOP("ProblemKinds", "Base coordinates wrong"),
                                 .severity = Severity::Error,
                                 .what = shiftWhat,
                                 .rank = 0};
constexpr ProblemKind kPoleShift{.name = "pole_shift",
                                 .caption = QT_TRANSLATE_NOOP("ProblemKinds", "Pole height wrong"),
                                 .severity = Severity::Error,
                                 .what = shiftWhat,
                                 .rank = 0};
constexpr ProblemKind kSurveyShift{.name = "survey_shift",
                                   .caption =
                                       QT_TRANSLATE_NOOP("ProblemKinds", "Survey off the design"),
                                   .severity = Severity::Error,
                                   .what = shiftWhat,
                                   .rank = 0};

constexpr ProblemKind kBaseDifference{
    "base_difference", QT_TRANSLATE_NOOP("ProblemKinds", "Differences of a base and a day"),
    Severity::Note, differenceWhat};

QString dayText(std::int64_t day)
{
    constexpr qint64 kFirstDay = 2440588; // 1970/01/01 as a Julian day
    return QDate::fromJulianDay(kFirstDay + day).toString(QStringLiteral("yyyy/MM/dd"));
}

void addShifts(const FinderInput& input, const statistics::SurveySample& sample,
               const ResultSet& misnamed, ProblemList& problems)
{
    const ShiftLimits limits{input.limit("shift_plane_max"), input.limit("shift_height_max"),
                             static_cast<std::size_t>(input.limit("shift_results_min")),
                             input.limit("line_skid_max")};
    const bool isListed = input.limit("base_differences") != 0;
    const bool isOff = limits.least == 0 || (limits.planeM <= 0 && limits.heightM <= 0);
    if (isOff && !isListed)
        return;
    const std::vector<statistics::MeasuredPair> pairs = pairsOf(input, misnamed);
    for (const GroupShift& shift :
         isOff ? std::vector<GroupShift>() : findGroupShifts(sample, pairs, limits)) {
        Problem& problem = add(kindOf(shift.cause), shift, problems);
        problem.limit = isMostlyHeight(shift) ? limits.heightM : limits.planeM;
    }
    if (!isListed)
        return;
    for (const GroupShift& mean : findGroupDifferences(sample, pairs))
        add(kBaseDifference, mean, problems);
}
