#include "reports/StatisticsFigures.h"

#include "exchange/ShownTimes.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/Text.h"
#include "reports/ReportInput.h"

#include <QCoreApplication>
#include <QDate>

#include <cmath>

namespace {

using statistics::GroupKey;

constexpr std::array kKeys{GroupKey::Line, GroupKey::Day, GroupKey::Rover, GroupKey::Surveyor,
                           GroupKey::Base};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsReport)
};

StatisticsPairs withFigures(statistics::MeasuredPairs found)
{
    statistics::PairFigures figures = statistics::figuresOf(found.pairs);
    return {std::move(found), figures};
}

} // namespace

StatisticsFigures StatisticsFigures::from(const ReportInput& input)
{
    QualityLimits limits = QualityLimits::from(input.qualityParameters);
    const double unitM = limits.planeUnitM = lum::lengthUnitOf(input.coordParameters).metres;
    const std::string resurveyCode(qualityParameter(input.qualityParameters, kResurveyCode));
    const statistics::IsWanted isWanted = [&](const SurveyPoint& point) {
        return input.includes(point);
    };
    StatisticsFigures all;
    all.sample = statistics::sampleOf(
        {input.design, input.survey, limits, resurveyCode, shownTimes(), isWanted});
    const auto figuresBy = [&](std::vector<GroupKey> keys) {
        return statistics::figuresOf(all.sample, statistics::groupBy(all.sample, std::move(keys)));
    };
    all.all = figuresBy({})[0];
    all.ofKind = figuresBy({GroupKey::PointKind});
    for (std::size_t i = 0; i < kKeys.size(); ++i) {
        StatisticsGroups& groups = all.groups[i];
        groups = {kKeys[i], statistics::groupBy(all.sample, {kKeys[i]}), {}};
        groups.figures = statistics::figuresOf(all.sample, groups.grouping);
    }
    all.distribution = statistics::distributionOf(all.sample);
    all.distributionOfKind = statistics::distributionsOfKinds(all.sample);
    all.resurveys =
        withFigures(statistics::resurveyPairs(input.survey, resurveyCode, unitM, isWanted));
    all.repeats = withFigures(statistics::repeatPairs(input.survey, unitM, isWanted));
    return all;
}

const SurveyPoint* StatisticsFigures::largestOf(const statistics::Moments& moments) const
{
    return moments.count() == 0 ? nullptr : sample.results[moments.largestPlace()].point;
}

double StatisticsFigures::p95(double statistics::Observation::*value) const
{
    std::vector<double> magnitudes;
    for (const statistics::Observation& result : sample.results) {
        if (result.isFirst() && std::isfinite(result.*value))
            magnitudes.push_back(std::fabs(result.*value));
    }
    return statistics::percentile95(magnitudes);
}

QString statisticsKeyName(GroupKey key)
{
    switch (key) {
    case GroupKey::Line:
        return Texts::tr("Line");
    case GroupKey::Day:
        return Texts::tr("Day");
    case GroupKey::Rover:
        return Texts::tr("Rover");
    case GroupKey::Surveyor:
        return Texts::tr("Surveyor");
    case GroupKey::Base:
        return Texts::tr("Base");
    case GroupKey::PointKind:
        return Texts::tr("Kind");
    default:
        return {};
    }
}

QString statisticsKeyText(GroupKey key, const statistics::KeyValue& value)
{
    if (key == GroupKey::Day && value.number != statistics::KeyValue::kNoNumber)
        return QDate(1970, 1, 1).addDays(value.number).toString(QStringLiteral("yyyy-MM-dd"));
    if (key == GroupKey::PointKind)
        return value.number == 0 ? Texts::tr("Sources") : Texts::tr("Receivers");
    return value.text.empty() ? Texts::tr("none given") : lum::toQString(value.text);
}
