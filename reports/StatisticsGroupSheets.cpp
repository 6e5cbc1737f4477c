#include "reports/StatisticsGroupSheets.h"

#include "exchange/workbook/Workbook.h"
#include "reports/ReportSteps.h"
#include "reports/StatisticsColumns.h"
#include "reports/StatisticsFigures.h"

#include <QCoreApplication>

namespace {

using Form = SheetColumn::Form;
using statistics::Figures;
using statistics::GroupKey;
using statistics::KeyValue;
using statistics::ResultKind;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsReport)
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
    for (const StatisticsColumn& column : statisticsColumns())
        columns.push_back({column.captionText(), column.form, column.decimals});
    if (key == GroupKey::Day) {
        columns.push_back({Texts::tr("Staked until then"), Form::Number});
        columns.push_back({Texts::tr("Designed in all"), Form::Number});
    }
    Sheet& sheet = book.addSheet(sheetName(key), std::move(columns), {.frozenColumns = 1});
    for (std::size_t i = 0; i < statisticsColumns().size(); ++i) {
        const StatisticsColumn& column = statisticsColumns()[i];
        if (column.most != nullptr)
            sheet.colourAbove(i + kFirstColumn, column.most(limits));
        if (column.least != nullptr)
            sheet.colourBelow(i + kFirstColumn, column.least(limits));
        if (column.text == &StatisticsRow::shift)
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

void addRow(Sheet& sheet, const StatisticsRow& row)
{
    for (const StatisticsColumn& column : statisticsColumns()) {
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
    const std::size_t staked = kFirstColumn + statisticsColumns().size();
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
