#include "quality/statistics/TestFigures.h"

#include "quality/statistics/Moments.h"

#include <algorithm>
#include <cmath>

namespace statistics {

namespace {

bool isFailed(const QualityTest& test, const Observation& result)
{
    return (qualityDigit(result.code, test.power) & test.weight) != 0;
}

void add(TestFigures& figures, const Observation& result, const QualityLimits& limits)
{
    const SurveyPoint& point = *result.point;
    const QualityTest& test = *figures.test;
    TestCount& count = figures.ofKind[point.pointMark != 0 ? 1 : 0];
    const bool hasFailed = isFailed(test, result);
    const double value = &test == &quality_test::kDesignHorizontal
                             ? result.distanceM
                             : test.judge(point, limits).value;
    if (!hasFailed && !std::isfinite(value)) {
        ++count.notJudged;
        return;
    }
    ++count.tested;
    count.failed += hasFailed ? 1U : 0U;
}

} // namespace

TestCount TestFigures::all() const
{
    const auto& [sources, receivers] = ofKind;
    return {sources.tested + receivers.tested, sources.failed + receivers.failed,
            sources.notJudged + receivers.notJudged};
}

std::vector<TestFigures> testFiguresOf(const SurveySample& sample)
{
    std::vector<TestFigures> tests;
    for (const QualityTest* const test : qualityTests())
        tests.push_back({test, {}});
    for (const Observation& result : sample.results) {
        for (TestFigures& figures : tests)
            add(figures, result, sample.limits);
    }
    return tests;
}

double WorstFault::ratio() const
{
    return judged.limit > 0 ? judged.value / judged.limit : kUnknown;
}

double WorstFault::severity() const
{
    const bool isUnder = judged.verdict == JudgedValue::Verdict::IsUnder;
    const double larger = isUnder ? judged.limit : std::fabs(judged.value);
    const double smaller = isUnder ? judged.value : judged.limit;
    return smaller > 0 ? larger / smaller : std::numeric_limits<double>::infinity();
}

std::optional<WorstFault> worstFaultOf(const Observation& result, const QualityLimits& limits)
{
    std::optional<WorstFault> worst;
    for (const QualityTest* const test : qualityTests()) {
        if (!isFailed(*test, result))
            continue;
        const WorstFault fault{test, test->judge(*result.point, limits)};
        if (!worst || fault.severity() > worst->severity())
            worst = fault;
    }
    return worst;
}

} // namespace statistics
