#include "reports/StatisticsColumns.h"

#include "lum_sdk/Text.h"
#include "model/PointNumber.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

using Form = StatisticsColumn::Form;
using Places = std::span<const std::uint32_t>;
using statistics::Observation;
using statistics::ResultKind;
using statistics::Verdict;

constexpr std::size_t kOfDays = 2;

std::size_t designed(const StatisticsRow& row)
{
    return row.figures.hasDesign ? row.figures.design.designed : row.sample.design.designed;
}

double ofDesign(const StatisticsRow& row, std::size_t points)
{
    return row.figures.hasDesign ? double(points) : statistics::kUnknown;
}

std::optional<std::uint32_t> largestPlace(const StatisticsRow& row, Places /*members*/)
{
    const statistics::Moments& distance = row.figures.distance;
    if (distance.count() == 0)
        return std::nullopt;
    return static_cast<std::uint32_t>(distance.largestPlace());
}

/// The first measurement that has this value.
template <class Value>
std::optional<std::uint32_t> placeOf(const StatisticsRow& row, Places members,
                                     Value Observation::*field, double value)
{
    const auto found = std::ranges::find_if(members, [&](std::uint32_t place) {
        const Observation& result = row.sample.results[place];
        return result.isFirst() && double(result.*field) == value;
    });
    return found == members.end() ? std::nullopt : std::optional(*found);
}

QString largestPoint(const StatisticsRow& row)
{
    const auto place = largestPlace(row, {});
    if (!place)
        return {};
    const SurveyPoint& point = *row.sample.results[*place].point;
    return lum::toQString(point.lineNumber) + QLatin1String(" / ") +
           lum::toQString(writtenPointNumber(point.pointNumber));
}

QString shift(const StatisticsRow& row)
{
    QStringList names;
    if (hasShift(row.figures.east))
        names << QStringLiteral("dE");
    if (hasShift(row.figures.north))
        names << QStringLiteral("dN");
    if (hasShift(row.figures.height))
        names << QStringLiteral("dH");
    return names.join(QLatin1String(", "));
}

double designHorizontal(const QualityLimits& limits)
{
    return limits.designHorizontalM + kRoundingM;
}

// One line here is one column of every table of groups.
constexpr StatisticsColumn kColumns[] = {
    {QT_TRANSLATE_NOOP("StatisticsReport", "Designed"), Form::Number, 0,
     [](const StatisticsRow& r) { return ofDesign(r, r.figures.design.designed); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Staked"), Form::Number, 0,
     [](const StatisticsRow& r) { return double(r.figures.of(ResultKind::Staked)); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Staked (%)"), Form::Percent, 1,
     [](const StatisticsRow& r) {
         return statistics::shareOf(r.figures.of(ResultKind::Staked), designed(r));
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
    {QT_TRANSLATE_NOOP("StatisticsReport", "Shift"), Form::Code, 0, nullptr, shift, nullptr,
     nullptr, true},
    {QT_TRANSLATE_NOOP("StatisticsReport", "RMS 2D (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.distance.rms(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "95 % 2D (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.distanceP95; }, nullptr, designHorizontal},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Maximum 2D (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.distance.largest(); }, nullptr, designHorizontal,
     nullptr, false, largestPlace},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Maximum at"), Form::Code, 0, nullptr, largestPoint,
     nullptr, nullptr, false, largestPlace},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean hor. accuracy (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.horizontalAccuracy.mean(); }, nullptr,
     [](const QualityLimits& limits) { return limits.hrmsM; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean vert. accuracy (m)"), Form::Number, 3,
     [](const StatisticsRow& r) { return r.figures.verticalAccuracy.mean(); }, nullptr,
     [](const QualityLimits& limits) { return limits.vrmsM; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Worst PDOP"), Form::Number, 1,
     [](const StatisticsRow& r) { return r.figures.pdop.maximum(); }, nullptr,
     [](const QualityLimits& limits) { return limits.pdop.max; }, nullptr, false,
     [](const StatisticsRow& r, Places members) {
         return placeOf(r, members, &Observation::pdop, r.figures.pdop.maximum());
     }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Fewest satellites"), Form::Number, 0,
     [](const StatisticsRow& r) { return r.figures.satellites.minimum(); }, nullptr, nullptr,
     [](const QualityLimits& limits) { return limits.satellites; }, false,
     [](const StatisticsRow& r, Places members) {
         return placeOf(r, members, &Observation::satellites, r.figures.satellites.minimum());
     }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Fixed (%)"), Form::Percent, 1,
     [](const StatisticsRow& r) { return r.figures.shareFixed(); }},
    // Of days alone.
    {QT_TRANSLATE_NOOP("StatisticsReport", "Staked until then"), Form::Number, 0,
     [](const StatisticsRow& r) { return double(r.stakedUntilThen); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Designed in all"), Form::Number, 0,
     [](const StatisticsRow& r) { return double(r.sample.design.designed); }},
};

} // namespace

QString StatisticsColumn::captionText() const
{
    return QCoreApplication::translate("StatisticsReport", caption);
}

QString StatisticsColumn::shown(double value) const
{
    if (!std::isfinite(value))
        return {};
    const bool isPercent = form == Form::Percent;
    if (isPercent)
        value *= 100;
    // A workbook's program rounds the 15 digits that it knows: 1.0005 becomes 1.001.
    constexpr double kLastDigit = 1e-15;
    const QString digits = QString::number(value * (1 + kLastDigit), 'f', decimals);
    return isPercent ? digits + QLatin1Char('%') : digits;
}

QString StatisticsColumn::shownText(const StatisticsRow& row) const
{
    return text != nullptr ? text(row) : shown(number(row));
}

const StatisticsColumn& statisticsColumn(std::string_view caption)
{
    return *std::ranges::find(kColumns, caption, &StatisticsColumn::caption);
}

std::span<const StatisticsColumn> statisticsColumns(bool isOfDays)
{
    const std::span<const StatisticsColumn> all(kColumns);
    return isOfDays ? all : all.first(all.size() - kOfDays);
}
