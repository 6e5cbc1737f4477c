#include "quality/problems/QualityProblems.h"

#include "quality/QualityTests.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

QString testWhat(const Problem& problem);

constexpr ProblemKind testKind(const char* name, const char* caption, const char* unit = "m",
                               int decimals = 3)
{
    return {name, caption, Severity::Error, testWhat, unit, decimals};
}

constexpr std::array kTestKinds{
    testKind("too_far", QT_TRANSLATE_NOOP("ProblemKinds", "Too far from the design")),
    testKind("height_off", QT_TRANSLATE_NOOP("ProblemKinds", "Height off the design")),
    testKind("base_far", QT_TRANSLATE_NOOP("ProblemKinds", "Base station too far")),
    testKind("hrms", "HRMS"),
    testKind("vrms", "VRMS"),
    testKind("antenna_high", QT_TRANSLATE_NOOP("ProblemKinds", "Antenna too high")),
    testKind("antenna_low", QT_TRANSLATE_NOOP("ProblemKinds", "Antenna too low")),
    testKind("pdop", "PDOP", "", 2),
    testKind("hdop", "HDOP", "", 2),
    testKind("vdop", "VDOP", "", 2),
    testKind("satellites", QT_TRANSLATE_NOOP("ProblemKinds", "Too few satellites"), "", 0),
    testKind("across", QT_TRANSLATE_NOOP("ProblemKinds", "Too far beside its line")),
    testKind("along", QT_TRANSLATE_NOOP("ProblemKinds", "Too far along its line")),
};

// The tests in the order of `kTestKinds`.
constexpr std::array kTests{&quality_test::kDesignHorizontal,
                            &quality_test::kDesignVertical,
                            &quality_test::kBaseDistance,
                            &quality_test::kHrms,
                            &quality_test::kVrms,
                            &quality_test::kAntennaHigh,
                            &quality_test::kAntennaLow,
                            &quality_test::kPdop,
                            &quality_test::kHdop,
                            &quality_test::kVdop,
                            &quality_test::kSatellites,
                            &quality_test::kAcross,
                            &quality_test::kAlong};
static_assert(kTests.size() == kTestKinds.size());

QString testWhat(const Problem& problem)
{
    const auto place = static_cast<std::size_t>(problem.kind - kTestKinds.data());
    return failureText(*kTests[place],
                       {problem.value, problem.limit,
                        static_cast<JudgedValue::Verdict>(static_cast<int>(problem.second))});
}

constexpr ProblemKind kNoDesign{
    "no_design", QT_TRANSLATE_NOOP("ProblemKinds", "Without design position"), Severity::Warning,
    [](const Problem& /*problem*/) {
        return QCoreApplication::translate(
            "QualityProblems",
            "The result does not say where its point was designed, so nobody knows how far from "
            "there it lies.");
    }};
constexpr ProblemKind kNoPosition{
    "no_position", QT_TRANSLATE_NOOP("ProblemKinds", "Without position"), Severity::Error,
    [](const Problem& /*problem*/) {
        return QCoreApplication::translate("QualityProblems",
                                           "North, east or elevation of the result is no number.");
    }};

constexpr auto kKinds = [] {
    std::array<const ProblemKind*, kTestKinds.size() + 2> kinds{};
    std::ranges::transform(kTestKinds, kinds.begin(),
                           [](const ProblemKind& kind) { return &kind; });
    kinds[kTestKinds.size()] = &kNoDesign;
    kinds[kTestKinds.size() + 1] = &kNoPosition;
    return kinds;
}();

/// The problems of a result that did not pass.
void addFailures(const SurveyPoint& point, const QualityLimits& limits, ProblemList& problems)
{
    constexpr int kDesignDigit = 0;
    const bool hasDesign = hasDesignPosition(point);
    if (!hasDesign && qualityDigit(point.qualityStandard, kDesignDigit) != 0)
        problems.add(kNoDesign, point);
    for (std::size_t place = 0; place < kTests.size(); ++place) {
        const QualityTest& test = *kTests[place];
        const int digit = qualityDigit(point.qualityStandard, test.power);
        if ((digit & test.weight) == 0 || (!hasDesign && test.power == kDesignDigit))
            continue;
        const JudgedValue judged = test.judge(point, limits);
        Problem& problem = problems.add(kTestKinds[place], point);
        problem.value = judged.value;
        problem.limit = judged.limit;
        problem.second = static_cast<double>(judged.verdict);
    }
}

void findFailures(const FinderInput& input, ProblemList& problems)
{
    for (const auto& [number, line] : input.survey()) {
        for (const SurveyPoint& point : line) {
            fetchAhead(point);
            if (!std::isfinite(point.north + point.east + point.elevation))
                problems.add(kNoPosition, point);
            if (point.qualityStandard != 0)
                addFailures(point, input.quality(), problems);
        }
    }
}

} // namespace

constexpr ProblemFinder kQualityFinder{findFailures, kKinds};
