#include "quality/problems/StoredValueProblems.h"

#include "model/CodeTables.h"
#include "quality/problems/ProblemColumns.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

/// A sentence with value and limit in the place of %1 and %2.
QString sentence(const char* text, const Problem& problem)
{
    return QCoreApplication::translate("StoredValueProblems", text)
        .arg(problemValueText(*problem.kind, problem.value),
             problemValueText(*problem.kind, problem.limit));
}

constexpr ProblemKind kSolution{
    "solution_type",
    QT_TRANSLATE_NOOP("ProblemKinds", "Solution type"),
    Severity::Error,
    [](const Problem& problem) {
        return sentence(QT_TRANSLATE_NOOP("StoredValueProblems",
                                          "The solution is %1; it should be %2 or better."),
                        problem);
    },
    "",
    0,
    [](double code) { return solutionTypeText(static_cast<int>(code)); }};
constexpr ProblemKind kAge{
    "age_of_diff",
    QT_TRANSLATE_NOOP("ProblemKinds", "Old corrections"),
    Severity::Error,
    [](const Problem& problem) {
        return sentence(QT_TRANSLATE_NOOP("StoredValueProblems",
                                          "The corrections were %1 old; at most %2 is allowed."),
                        problem);
    },
    "s",
    1};
constexpr ProblemKind kEpochs{
    "epoch_num",
    QT_TRANSLATE_NOOP("ProblemKinds", "Too few epochs"),
    Severity::Error,
    [](const Problem& problem) {
        return sentence(
            QT_TRANSLATE_NOOP("StoredValueProblems", "Epochs: %1; at least %2 are wanted."),
            problem);
    },
    "",
    0};
constexpr ProblemKind kOccupation{
    "occupation",
    QT_TRANSLATE_NOOP("ProblemKinds", "Occupied too shortly"),
    Severity::Error,
    [](const Problem& problem) {
        if (std::isnan(problem.value))
            return QCoreApplication::translate("StoredValueProblems",
                                               "The result does not say how long its point was "
                                               "occupied; at least %1 is wanted.")
                .arg(problemValueText(*problem.kind, problem.limit));
        return sentence(QT_TRANSLATE_NOOP("StoredValueProblems",
                                          "The point was occupied for %1; at least %2 is wanted."),
                        problem);
    },
    "s",
    1};
constexpr ProblemKind kRms{
    "rms", "RMS", Severity::Error, [](const Problem& problem) {
        return sentence(QT_TRANSLATE_NOOP("StoredValueProblems", "RMS %1 is over its limit %2."),
                        problem);
    }};
constexpr std::array kKinds{&kSolution, &kAge, &kEpochs, &kOccupation, &kRms};

/// The better the solution, the greater.
int rankOf(double solutionType)
{
    constexpr std::array kRanks{0, 1, 2, 2, 4, 3};
    const auto code = static_cast<std::size_t>(std::max(solutionType, 0.0));
    return code < kRanks.size() ? kRanks[code] : 0;
}

bool isAsGood(double value, double limit)
{
    return rankOf(value) >= rankOf(limit);
}

bool isAtLeast(double value, double limit)
{
    return value >= limit;
}

bool isAtMost(double value, double limit)
{
    return value <= limit;
}

double occupationS(const SurveyPoint& point)
{
    constexpr double kMilliseconds = 1000;
    if (point.startTime == 0 || point.endTime == 0)
        return kNoValue;
    return (static_cast<double>(point.endTime) - static_cast<double>(point.startTime)) /
           kMilliseconds;
}

struct Test
{
    const ProblemKind* kind;
    const char* key; ///< of its limit
    double (*value)(const SurveyPoint& point);
    bool (*passes)(double value, double limit);
};

constexpr std::array kTests{
    Test{&kSolution, "solution_type_min",
         [](const SurveyPoint& point) { return double(point.solutionType); }, isAsGood},
    Test{&kAge, "age_of_diff_max", [](const SurveyPoint& point) { return point.ageOfDiff; },
         isAtMost},
    Test{&kEpochs, "epoch_num_min",
         [](const SurveyPoint& point) { return double(point.epochNumber); }, isAtLeast},
    Test{&kOccupation, "occupation_min", occupationS, isAtLeast},
    Test{&kRms, "rms_max", [](const SurveyPoint& point) { return point.rms; }, isAtMost},
};

struct LimitedTest
{
    const Test* test;
    double limit;
};

void findBeyond(const FinderInput& input, ProblemList& problems)
{
    std::vector<LimitedTest> tests;
    for (const Test& test : kTests) {
        if (const double limit = input.limit(test.key); limit > 0)
            tests.push_back({&test, limit});
    }
    if (tests.empty())
        return;
    for (const auto& [number, line] : input.survey()) {
        for (const SurveyPoint& point : line) {
            for (const auto& [test, limit] : tests) {
                const double value = test->value(point);
                if (test->passes(value, limit))
                    continue;
                Problem& problem = problems.add(*test->kind, point);
                problem.value = value;
                problem.limit = limit;
            }
        }
    }
}

} // namespace

constexpr ProblemFinder kStoredValueFinder{findBeyond, kKinds};
