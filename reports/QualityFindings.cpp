#include "reports/QualityFindings.h"

#include "exchange/ShownTimes.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "reports/ReportInput.h"

namespace {

using namespace statistics;

SurveySample sampleFor(const ReportInput& input)
{
    QualityLimits limits = QualityLimits::from(input.qualityParameters);
    limits.planeUnitM = lum::lengthUnitOf(input.coordParameters).metres;
    return sampleOf({input.design, input.survey, limits,
                     std::string(qualityParameter(input.qualityParameters, kResurveyCode)),
                     shownTimes(),
                     [&input](const SurveyPoint& point) { return input.includes(point); }});
}

} // namespace

QualityFindings::QualityFindings(const ReportInput& input)
    : sample(sampleFor(input)), all(figuresOf(sample, groupBy(sample, {})).front()),
      ofKind(figuresOf(sample, groupBy(sample, {GroupKey::PointKind}))),
      ofLine(figuresOf(sample, groupBy(sample, {GroupKey::Line}))), tests(testFiguresOf(sample))
{
    for (std::uint32_t i = 0; i < sample.results.size(); ++i) {
        if (const auto worst = worstFaultOf(sample.results[i], sample.limits))
            failures.push_back({i, *worst});
    }
}

std::size_t failedOf(const Figures& figures)
{
    return figures.all(Verdict::Failed);
}

std::size_t judgedOf(const Figures& figures)
{
    return failedOf(figures) + figures.all(Verdict::WithinLimits);
}

double shareFailedOf(const Figures& figures)
{
    return shareOf(failedOf(figures), judgedOf(figures));
}
