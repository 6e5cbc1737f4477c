#include "quality/problems/LineKinds.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"

#include <QCoreApplication>

#include <cmath>

namespace {

struct LineKinds
{
    Q_DECLARE_TR_FUNCTIONS(LineKinds)
};

QString fixed(double value, int decimals)
{
    return QString::fromStdString(basalt::formatFixed(value, decimals));
}

QString metres(double lengthM)
{
    constexpr int kDecimals = 2;
    return fixed(lengthM, kDecimals);
}

QString otherOf(const Problem& problem)
{
    const QString number = lum::toQString(writtenPointNumber(problem.otherPoint));
    return problem.otherLine == problem.line
               ? number
               : lum::toQString(problem.otherLine) + QStringLiteral(" / ") + number;
}

/// With a second sentence when more points of the line have the same.
QString withMore(const Problem& problem, const QString& sentence)
{
    if (problem.count == 0)
        return sentence;
    return sentence + QLatin1Char(' ') +
           LineKinds::tr("The same at more points of the line: %1.").arg(problem.count);
}

QString spacing(const Problem& problem)
{
    return withMore(problem,
                    LineKinds::tr("%1 m to %2, where points of the line are %3 m apart.")
                        .arg(metres(problem.value), otherOf(problem), metres(problem.second)));
}

QString gap(const Problem& problem)
{
    const QString missing = fixed(problem.value, 0);
    const QString sentence =
        problem.detail == line_kinds::kAdjacent
            ? LineKinds::tr("The next point, %1, is only %2 m away, but between them numbers are "
                            "missing: %3.")
            : LineKinds::tr("The next point is %1, %2 m away; numbers missing between them: %3.");
    return withMore(problem, sentence.arg(otherOf(problem), metres(problem.second), missing));
}

QString azimuth(const Problem& problem)
{
    if (problem.detail == line_kinds::kGiven)
        return withMore(
            problem, LineKinds::tr("Its azimuth is %1 degrees, that of %2 is %3.")
                         .arg(fixed(problem.value, 2), otherOf(problem), fixed(problem.second, 2)));
    return withMore(problem,
                    LineKinds::tr("Stands %1 m beside the line.").arg(metres(problem.second)));
}

QString reversed(const Problem& problem)
{
    constexpr std::uint32_t kPair = 2;
    if (problem.point.empty())
        return LineKinds::tr("The numbers of the line run the other way than those of the lines "
                             "beside it.");
    if (problem.count <= kPair)
        return LineKinds::tr("Stands in reversed order with %1.").arg(otherOf(problem));
    return LineKinds::tr("From here to %1 the numbers run against the line; points: %2.")
        .arg(otherOf(problem))
        .arg(problem.count);
}

QString coincident(const Problem& problem)
{
    return withMore(
        problem,
        LineKinds::tr("Stands %1 m from %2.").arg(metres(problem.value), otherOf(problem)));
}

QString interleaved(const Problem& problem)
{
    return LineKinds::tr("Points of line %1 lie between points of this line, the first is %2; "
                         "points: %3.")
        .arg(lum::toQString(problem.otherLine),
             lum::toQString(writtenPointNumber(problem.otherPoint)))
        .arg(problem.count);
}

QString height(const Problem& problem)
{
    const QString sentence = problem.value > 0
                                 ? LineKinds::tr("%1 m above its neighbours in the line.")
                                 : LineKinds::tr("%1 m below its neighbours in the line.");
    return withMore(problem, sentence.arg(metres(std::fabs(problem.value))));
}

} // namespace

namespace line_kinds {

constexpr ProblemKind kSpacing{"line_spacing",
                               QT_TRANSLATE_NOOP("ProblemKinds", "Spacing in the line"),
                               Severity::Warning, spacing};
constexpr ProblemKind kGap{"number_gap",
                           QT_TRANSLATE_NOOP("ProblemKinds", "Gap in the numbers"),
                           Severity::Warning,
                           gap,
                           "",
                           0};
constexpr ProblemKind kAzimuth{
    "azimuth_spike",   QT_TRANSLATE_NOOP("ProblemKinds", "Azimuth spike"),
    Severity::Warning, azimuth,
    "\u00b0",          1};
constexpr ProblemKind kReversed{"reversed_order",
                                QT_TRANSLATE_NOOP("ProblemKinds", "Reversed order"),
                                Severity::Error,
                                reversed,
                                "",
                                0};
constexpr ProblemKind kCoincident{"coincident",
                                  QT_TRANSLATE_NOOP("ProblemKinds", "Points in one place"),
                                  Severity::Warning, coincident};
constexpr ProblemKind kInterleaved{"interleaved",
                                   QT_TRANSLATE_NOOP("ProblemKinds", "Interleaved lines"),
                                   Severity::Error,
                                   interleaved,
                                   "",
                                   0};
constexpr ProblemKind kHeight{"height_jump", QT_TRANSLATE_NOOP("ProblemKinds", "Height jump"),
                              Severity::Warning, height};

const ProblemKind* kindOf(LineFinding::Kind kind)
{
    switch (kind) {
    case LineFinding::Kind::Spacing:
        return &kSpacing;
    case LineFinding::Kind::Gap:
        return &kGap;
    case LineFinding::Kind::Hole:
        return nullptr;
    case LineFinding::Kind::Azimuth:
    case LineFinding::Kind::Bearing:
        return &kAzimuth;
    case LineFinding::Kind::Reversed:
        return &kReversed;
    case LineFinding::Kind::Height:
        return &kHeight;
    }
    return nullptr;
}

} // namespace line_kinds
