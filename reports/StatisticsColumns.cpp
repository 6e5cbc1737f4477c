#include "reports/StatisticsColumns.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "reports/StatisticsFigures.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

using Form = SheetColumn::Form;
using statistics::Figures;
using statistics::ResultKind;
using statistics::Verdict;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsReport)
};

double ofDesign(const StatisticsRow& row, std::size_t points)
{
    return row.figures.hasDesign ? double(points) : statistics::kUnknown;
}

double designHorizontal(const QualityLimits& limits)
{
    return limits.designHorizontalM + kRoundingM;
}

// One line here is one column of five sheets.
constexpr StatisticsColumn kColumns[] = {
    {QT_TRANSLATE_NOOP("StatisticsReport", "Designed"), Form::Number, 0,
     [](const StatisticsRow& r) { return ofDesign(r, r.figures.design.designed); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Staked"), Form::Number, 0,
     [](const StatisticsRow& r) { return double(r.figures.of(ResultKind::Staked)); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Staked (%)"), Form::Percent, 1,
     [](const StatisticsRow& r) {
         return statistics::shareOf(r.figures.of(ResultKind::Staked), r.designed());
     }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Left"), Form::Number, 0,
     [](const StatisticsRow& r) { return ofDesign(r, r.figures.design.left); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Not planned"), Form::Number, 0,
     [](const StatisticsRow& r) { return double(r.figures.of(ResultKind::Unplanned)); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Within limits"), Form::Number, 0,
     [](const StatisticsRow& r) { return double(r.figures.first(Verdict::WithinLimits)); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Over limit"), Form::Number, 0,
     [](const StatisticsRow& r) { return double(r.figures.first(Verdict::Failed)); }, nullptr,
     [](const QualityLimits&) { return 0.; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Not judged"), Form::Number, 0,
     [](const StatisticsRow& r) { return double(r.figures.first(Verdict::NotJudged)); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Within limits (%)"), Form::Percent, 1,
     [](const StatisticsRow& r) { return r.figures.shareWithinLimits(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean dE (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.east.mean(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Std. dev. dE (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.east.standardDeviation(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean dN (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.north.mean(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Std. dev. dN (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.north.standardDeviation(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean dH (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.height.mean(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Std. dev. dH (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.height.standardDeviation(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Shift"), Form::Code, 0, nullptr, &StatisticsRow::shift},
    {QT_TRANSLATE_NOOP("StatisticsReport", "RMS 2D (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.distance.rms(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "95 % 2D (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.distanceP95; }, nullptr, designHorizontal},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Maximum 2D (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.distance.largest(); }, nullptr,
     designHorizontal},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Maximum at"), Form::Code, 0, nullptr,
     &StatisticsRow::largestPoint},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean hor. accuracy (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.horizontalAccuracy.mean(); }, nullptr,
     [](const QualityLimits& limits) { return limits.hrmsM; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean vert. accuracy (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.verticalAccuracy.mean(); }, nullptr,
     [](const QualityLimits& limits) { return limits.vrmsM; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Worst PDOP"), Form::Number, 1,
     [](const StatisticsRow& r) { return r.figures.pdop.maximum(); }, nullptr,
     [](const QualityLimits& limits) { return limits.pdop.max; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Fewest satellites"), Form::Number, 0,
     [](const StatisticsRow& r) { return r.figures.satellites.minimum(); }, nullptr, nullptr,
     [](const QualityLimits& limits) { return limits.satellites; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Fixed (%)"), Form::Percent, 1,
     [](const StatisticsRow& r) { return r.figures.shareFixed(); }},
};

} // namespace

std::size_t StatisticsRow::designed() const
{
    return figures.hasDesign ? figures.design.designed : all.sample.design.designed;
}

QString StatisticsRow::largestPoint() const
{
    const SurveyPoint* const point = all.largestOf(figures.distance);
    if (point == nullptr)
        return {};
    return lum::toQString(point->lineNumber) + QLatin1String(" / ") +
           lum::toQString(writtenPointNumber(point->pointNumber));
}

QString StatisticsRow::shift() const
{
    QStringList names;
    if (hasShift(figures.east))
        names << QStringLiteral("dE");
    if (hasShift(figures.north))
        names << QStringLiteral("dN");
    if (hasShift(figures.height))
        names << QStringLiteral("dH");
    return names.join(QLatin1String(", "));
}

QString StatisticsColumn::captionText() const
{
    return Texts::tr(caption);
}

QString StatisticsColumn::shownText(const StatisticsRow& row) const
{
    return text != nullptr ? (row.*text)() : shownFigure(number(row), form, decimals);
}

QString shownFigure(double value, Form form, int decimals)
{
    if (!std::isfinite(value))
        return {};
    const double shown = form == Form::Percent ? value * 100 : value;
    const bool isZero = std::fabs(shown) < 0.5 * std::pow(10, -decimals); // no "-0"
    return QString::fromStdString(basalt::formatFixed(isZero ? 0 : shown, decimals));
}

std::span<const StatisticsColumn> statisticsColumns()
{
    return kColumns;
}

const StatisticsColumn& statisticsColumn(std::string_view caption)
{
    return *std::find_if(std::begin(kColumns), std::end(kColumns),
                         [&](const StatisticsColumn& each) { return caption == each.caption; });
}
