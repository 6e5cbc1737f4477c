#include "reports/StatisticsGroupSheets.h"

#include "exchange/workbook/Workbook.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "reports/ReportSteps.h"
#include "reports/StatisticsFigures.h"

#include <QCoreApplication>

namespace {

using Form = SheetColumn::Form;
using statistics::Figures;
using statistics::GroupKey;
using statistics::KeyValue;
using statistics::ResultKind;
using statistics::Verdict;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsReport)
};

struct Row
{
    const Figures& figures;
    const StatisticsFigures& all;

    [[nodiscard]] std::size_t designed() const
    {
        return figures.hasDesign ? figures.design.designed : all.sample.design.designed;
    }
    [[nodiscard]] QString largestPoint() const;
    [[nodiscard]] QString shift() const;
};

QString Row::largestPoint() const
{
    const SurveyPoint* const point = all.largestOf(figures.distance);
    if (point == nullptr)
        return {};
    return lum::toQString(point->lineNumber) + QLatin1String(" / ") +
           lum::toQString(writtenPointNumber(point->pointNumber));
}

QString Row::shift() const
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

double ofDesign(const Row& row, std::size_t points)
{
    return row.figures.hasDesign ? double(points) : statistics::kUnknown;
}

/// A column of all five sheets: a number, or a text.
struct Column
{
    const char* caption = "";
    Form form = Form::Text;
    int decimals = 0;
    double (*number)(const Row&) = nullptr;
    QString (Row::*text)() const = nullptr;
    double (*most)(const QualityLimits&) = nullptr;  ///< what is above it is coloured
    double (*least)(const QualityLimits&) = nullptr; ///< what is below it is coloured
};

double designHorizontal(const QualityLimits& limits)
{
    return limits.designHorizontalM + kRoundingM;
}

// The columns behind the key: one line here is one column of five sheets.
constexpr Column kColumns[] = {
    {QT_TRANSLATE_NOOP("StatisticsReport", "Designed"), Form::Number, 0,
     [](const Row& r) { return ofDesign(r, r.figures.design.designed); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Staked"), Form::Number, 0,
     [](const Row& r) { return double(r.figures.of(ResultKind::Staked)); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Staked (%)"), Form::Percent, 1,
     [](const Row& r) {
         return statistics::shareOf(r.figures.of(ResultKind::Staked), r.designed());
     }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Left"), Form::Number, 0,
     [](const Row& r) { return ofDesign(r, r.figures.design.left); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Not planned"), Form::Number, 0,
     [](const Row& r) { return double(r.figures.of(ResultKind::Unplanned)); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Within limits"), Form::Number, 0,
     [](const Row& r) { return double(r.figures.first(Verdict::WithinLimits)); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Over limit"), Form::Number, 0,
     [](const Row& r) { return double(r.figures.first(Verdict::Failed)); }, nullptr,
     [](const QualityLimits&) { return 0.; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Not judged"), Form::Number, 0,
     [](const Row& r) { return double(r.figures.first(Verdict::NotJudged)); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Within limits (%)"), Form::Percent, 1,
     [](const Row& r) { return r.figures.shareWithinLimits(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean dE (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.east.mean(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Std. dev. dE (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.east.standardDeviation(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean dN (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.north.mean(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Std. dev. dN (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.north.standardDeviation(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean dH (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.height.mean(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Std. dev. dH (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.height.standardDeviation(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Shift"), Form::Code, 0, nullptr, &Row::shift},
    {QT_TRANSLATE_NOOP("StatisticsReport", "RMS 2D (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.distance.rms(); }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "95 % 2D (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.distanceP95; }, nullptr, designHorizontal},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Maximum 2D (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.distance.largest(); }, nullptr, designHorizontal},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Maximum at"), Form::Code, 0, nullptr,
     &Row::largestPoint},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean hor. accuracy (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.horizontalAccuracy.mean(); }, nullptr,
     [](const QualityLimits& limits) { return limits.hrmsM; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Mean vert. accuracy (m)"), Form::Number, 3,
     [](const Row& r) { return r.figures.verticalAccuracy.mean(); }, nullptr,
     [](const QualityLimits& limits) { return limits.vrmsM; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Worst PDOP"), Form::Number, 1,
     [](const Row& r) { return r.figures.pdop.maximum(); }, nullptr,
     [](const QualityLimits& limits) { return limits.pdop.max; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Fewest satellites"), Form::Number, 0,
     [](const Row& r) { return r.figures.satellites.minimum(); }, nullptr, nullptr,
     [](const QualityLimits& limits) { return limits.satellites; }},
    {QT_TRANSLATE_NOOP("StatisticsReport", "Fixed (%)"), Form::Percent, 1,
     [](const Row& r) { return r.figures.shareFixed(); }},
};

constexpr std::size_t kFirstColumn = 1; // behind the key

QString sheetName(GroupKey key)
{
    switch (key) {
    case GroupKey::Line:
        return Texts::tr("Lines");
    case GroupKey::Day:
        return Texts::tr("Days");
    case GroupKey::Rover:
        return Texts::tr("Rovers");
    case GroupKey::Surveyor:
        return Texts::tr("Surveyors");
    default:
        return Texts::tr("Bases");
    }
}

Sheet& addSheet(Workbook& book, GroupKey key, const QualityLimits& limits)
{
    std::vector<SheetColumn> columns{
        {statisticsKeyName(key), key == GroupKey::Day ? Form::Date : Form::Text}};
    for (const Column& column : kColumns)
        columns.push_back({Texts::tr(column.caption), column.form, column.decimals});
    if (key == GroupKey::Day) {
        columns.push_back({Texts::tr("Staked until then"), Form::Number});
        columns.push_back({Texts::tr("Designed in all"), Form::Number});
    }
    Sheet& sheet = book.addSheet(sheetName(key), std::move(columns), {.frozenColumns = 1});
    for (std::size_t i = 0; i < std::size(kColumns); ++i) {
        const Column& column = kColumns[i];
        if (column.most != nullptr)
            sheet.colourAbove(i + kFirstColumn, column.most(limits));
        if (column.least != nullptr)
            sheet.colourBelow(i + kFirstColumn, column.least(limits));
        if (column.text == &Row::shift)
            sheet.colourFilled(i + kFirstColumn, Sheet::Colour::Warning);
    }
    return sheet;
}

void addKey(Sheet& sheet, GroupKey key, const KeyValue& value)
{
    if (key == GroupKey::Day && value.number != KeyValue::kNoNumber)
        sheet.day(value.number);
    else
        sheet.text(statisticsKeyText(key, value));
}

void addRow(Sheet& sheet, const Row& row)
{
    for (const Column& column : kColumns) {
        if (column.text != nullptr)
            sheet.text((row.*column.text)());
        else
            sheet.number(column.number(row));
    }
}

Sheet& addGroups(Workbook& book, const StatisticsFigures& all, const StatisticsGroups& groups,
                 ReportSteps& steps)
{
    Sheet& sheet = addSheet(book, groups.key, all.sample.limits);
    std::size_t stakedUntilThen = 0;
    for (std::size_t group = 0; group < groups.figures.size(); ++group) {
        const Figures& figures = groups.figures[group];
        addKey(sheet, groups.key, groups.grouping.value(all.sample, group, groups.key));
        addRow(sheet, {figures, all});
        if (groups.key == GroupKey::Day) {
            stakedUntilThen += figures.of(ResultKind::Staked);
            sheet.number(double(stakedUntilThen)).number(double(all.sample.design.designed));
        }
        sheet.endRow();
        if (!steps.next())
            break;
    }
    return sheet;
}

/// What has no day is in the first row, if there is any.
Chart progressChart(const Sheet& sheet, const std::vector<KeyValue>& days)
{
    Chart chart{Chart::Kind::Lines, Texts::tr("Progress"),      {},
                Texts::tr("Day"),   Texts::tr("Points staked"), true};
    const bool hasUndated = !days.empty() && days.front().number == KeyValue::kNoNumber;
    const std::size_t count = days.size() - (hasUndated ? 1 : 0);
    if (count == 0)
        return chart;
    if (count == 1) // a line needs two points
        chart.kind = Chart::Kind::Columns;
    const auto cells = [&](std::size_t column) {
        CellRange range = sheet.cells(column);
        range.firstRow += hasUndated ? 1 : 0;
        return range;
    };
    const std::size_t staked = kFirstColumn + std::size(kColumns);
    chart.series = {{Texts::tr("Staked until then"), cells(0), cells(staked)},
                    {Texts::tr("Designed in all"), cells(0), cells(staked + 1)}};
    return chart;
}

} // namespace

Chart addStatisticsGroupSheets(Workbook& book, const StatisticsFigures& figures, ReportSteps& steps)
{
    Chart progress;
    for (const StatisticsGroups& groups : figures.groups) {
        const Sheet& sheet = addGroups(book, figures, groups, steps);
        if (groups.key == GroupKey::Day)
            progress = progressChart(sheet, figures.sample.valuesOf(GroupKey::Day));
    }
    return progress;
}
