#include "quality/statistics/TestFigures.h"

#include "quality/QualityTests.h"

#include <algorithm>
#include <cmath>

namespace statistics {

namespace {

void add(TestFigures& figures, const Observation& result, const QualityLimits& limits)
{
    const SurveyPoint& point = *result.point;
    const QualityTest& test = *figures.test;
    TestCount& count = figures.ofKind[point.pointMark != 0 ? 1 : 0];
    const bool isFailed = (qualityDigit(result.code, test.power) & test.weight) != 0;
    const double value = &test == &quality_test::kDesignHorizontal
                             ? result.distanceM
                             : test.judge(point, limits).value;
    if (!isFailed && !std::isfinite(value)) {
        ++count.notJudged;
        return;
    }
    ++count.tested;
    count.failed += isFailed ? 1U : 0U;
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

} // namespace statistics
