#include "quality/problems/CheckProblems.h"

#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "quality/problems/ProblemColumns.h"
#include "quality/ResurveyCheck.h"
#include "quality/ResurveyTolerances.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("CheckProblems", text);
}

template <class Judge>
void forEachResult(const SurveyPoints& survey, Judge judge)
{
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint& point : line) {
            fetchAhead(point);
            judge(line, point);
        }
    }
}

// Empty points

constexpr ProblemKind kMissing{
    "missing", QT_TRANSLATE_NOOP("ProblemKinds", "Not surveyed"), Severity::Warning,
    [](const Problem& /*problem*/) {
        return translated(QT_TRANSLATE_NOOP("CheckProblems", "The design point has no result."));
    }};
constexpr std::array kEmptyPointKinds{&kMissing};

template <class Use>
void forEachEmpty(const DesignPoints& design, Use use)
{
    for (const auto& [number, line] : design) {
        for (const DesignPoint& point : line) {
            fetchAhead(point);
            if (point.status == 0)
                use(point);
        }
    }
}

void findEmptyPoints(const FinderInput& input, ProblemList& problems)
{
    std::size_t count = 0; // a list that grows step by step takes twice as long
    forEachEmpty(input.design(), [&](const DesignPoint& /*point*/) { ++count; });
    problems.reserve(count);
    forEachEmpty(input.design(), [&](const DesignPoint& point) { problems.add(kMissing, point); });
}

// Resurveys

constexpr std::array kDifferences{
    QT_TRANSLATE_NOOP("CheckProblems", "The resurvey %1 lies %2 off in north."),
    QT_TRANSLATE_NOOP("CheckProblems", "The resurvey %1 lies %2 off in east."),
    QT_TRANSLATE_NOOP("CheckProblems", "The resurvey %1 lies %2 off in height.")};

constexpr ProblemKind kResurveyOff{
    "resurvey_off", QT_TRANSLATE_NOOP("ProblemKinds", "Resurvey out of range"), Severity::Error,
    [](const Problem& problem) {
        return translated(kDifferences[static_cast<std::size_t>(problem.second)])
            .arg(lum::toQString(problem.otherPoint),
                 problemValueText(*problem.kind, problem.value));
    }};
constexpr ProblemKind kResurveyAlone{
    "resurvey_alone", QT_TRANSLATE_NOOP("ProblemKinds", "Resurvey without its point"),
    Severity::Warning, [](const Problem& /*problem*/) {
        return translated(QT_TRANSLATE_NOOP(
            "CheckProblems", "The line has no result of the point that this one surveys again."));
    }};
constexpr std::array kResurveyKinds{&kResurveyOff, &kResurveyAlone};

using Differences = std::array<double, 3>; // north, east, height

/// The difference that exceeds its tolerance most.
/// \param differences  on the plane in the project's unit
void describe(Problem& problem, const Differences& differences,
              const ResurveyTolerances& tolerances)
{
    const Differences metres{differences[0] * tolerances.planeUnitM,
                             differences[1] * tolerances.planeUnitM, differences[2]};
    std::size_t worst = 0;
    const auto excess = [&](std::size_t place) {
        return std::fabs(metres[place]) - tolerances.metres[place];
    };
    for (std::size_t place = 1; place < metres.size(); ++place) {
        if (!(excess(place) <= excess(worst)))
            worst = place;
    }
    problem.value = metres[worst];
    problem.limit = tolerances.metres[worst];
    problem.second = static_cast<double>(worst);
}

void findResurveys(const FinderInput& input, ProblemList& problems)
{
    constexpr int kOutOfRange = 1;
    const auto tolerances = ResurveyTolerances::from(input.parameters(), input.planeUnitM());
    forEachResult(input.survey(), [&](const auto& /*line*/, const SurveyPoint& point) {
        const int digit = resurveyDigit(point);
        if (digit == 0)
            return;
        Problem& problem =
            problems.add(digit == kOutOfRange ? kResurveyOff : kResurveyAlone, point);
        if (digit != kOutOfRange)
            return;
        describe(problem, {point.resurveyXDiff, point.resurveyYDiff, point.resurveyHDiff},
                 tolerances);
        problem.otherLine = problem.line;
        problem.otherPoint = problems.keep(point.pairedNumber);
    });
}

// Repeats

constexpr ProblemKind kRepeat{
    "repeat", QT_TRANSLATE_NOOP("ProblemKinds", "Measured again"), Severity::Note,
    [](const Problem& problem) {
        if (problem.otherPoint.empty())
            return translated(QT_TRANSLATE_NOOP(
                "CheckProblems", "The line has no result of the point that this one repeats."));
        return translated(QT_TRANSLATE_NOOP("CheckProblems",
                                            "It repeats %1, %2 beside it and %3 in height."))
            .arg(lum::toQString(problem.otherPoint), problemValueText(*problem.kind, problem.value),
                 problemValueText(*problem.kind, problem.second));
    }};
constexpr std::array kRepeatDifferences{
    QT_TRANSLATE_NOOP("CheckProblems", "It repeats %1, but lies %2 off in north."),
    QT_TRANSLATE_NOOP("CheckProblems", "It repeats %1, but lies %2 off in east."),
    QT_TRANSLATE_NOOP("CheckProblems", "It repeats %1, but lies %2 off in height.")};

constexpr ProblemKind kRepeatOff{
    "repeat_off", QT_TRANSLATE_NOOP("ProblemKinds", "Repeat out of range"), Severity::Error,
    [](const Problem& problem) {
        return translated(kRepeatDifferences[static_cast<std::size_t>(problem.second)])
            .arg(lum::toQString(problem.otherPoint),
                 problemValueText(*problem.kind, problem.value));
    }};
constexpr std::array kRepeatKinds{&kRepeat, &kRepeatOff};

constexpr std::string_view kRepeatMark = "C";

/// By the tolerances of resurveys.
void findRepeats(const FinderInput& input, ProblemList& problems)
{
    const auto tolerances = ResurveyTolerances::from(input.parameters(), input.planeUnitM());
    forEachResult(input.survey(), [&](const auto& line, const SurveyPoint& point) {
        const std::string_view number = writtenPointNumber(point.pointNumber);
        if (number.substr(0, 1) != kRepeatMark ||
            input.design().find(point.lineNumber, point.pointNumber) != nullptr)
            return;
        const SurveyPoint* const first = line.find(number.substr(1));
        if (first == nullptr) {
            problems.add(kRepeat, point);
            return;
        }
        const Differences differences{point.north - first->north, point.east - first->east,
                                      point.elevation - first->elevation};
        const auto exceeded = tolerances.exceededBy(differences);
        const bool isOff = std::ranges::find(exceeded, true) != exceeded.end();
        Problem& problem = problems.add(isOff ? kRepeatOff : kRepeat, point);
        problem.otherLine = problem.line;
        problem.otherPoint = problems.keep(first->pointNumber);
        if (isOff)
            return describe(problem, differences, tolerances);
        problem.value = input.planeUnitM() * std::hypot(differences[0], differences[1]);
        problem.second = differences[2];
    });
}

} // namespace

constexpr ProblemFinder kEmptyPointFinder{findEmptyPoints, kEmptyPointKinds};
constexpr ProblemFinder kResurveyFinder{findResurveys, kResurveyKinds};
constexpr ProblemFinder kRepeatFinder{findRepeats, kRepeatKinds};
