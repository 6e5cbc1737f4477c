#include "reports/daily/DailyTables.h"

#include "exchange/ShownTimes.h"
#include "lum_sdk/GroupedNumber.h"
#include "map/sheet/MapSheet.h"
#include "project/history/HistoryAuthor.h"
#include "reports/daily/DailyFigures.h"
#include "reports/ReportInput.h"
#include "reports/StatisticsColumns.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

using statistics::Figures;
using statistics::GroupKey;
using statistics::ResultKind;
using statistics::Verdict;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DailyReport)
};

constexpr std::size_t kMostRows = 60; // of a table by surveyor or rover
constexpr int kNameLines = 2;

// Of the columns of the workbook "Quality statistics", those that have room on a page.
constexpr const char* kStatistics[] = {"Staked",      "Not planned",       "Within limits",
                                       "Over limit",  "Within limits (%)", "Mean dE (m)",
                                       "Mean dN (m)", "Mean dH (m)",       "RMS 2D (m)",
                                       "95 % 2D (m)", "Maximum 2D (m)",    "Fixed (%)"};

QString count(std::size_t number)
{
    return lum::groupedNumber(number);
}

QString dayText(std::int64_t day)
{
    return QDate(1970, 1, 1).addDays(day).toString(Qt::ISODate);
}

/// The rows of a table beyond the most are counted.
void shorten(DailyTable& table)
{
    if (table.rows.size() <= kMostRows)
        return;
    table.note = Texts::tr("and %1 more; the workbook \"Quality statistics\" has them all")
                     .arg(count(table.rows.size() - kMostRows));
    table.rows.resize(kMostRows);
}

/// What a surveyor did, or all of them.
struct Work
{
    std::size_t sources = 0;
    std::size_t receivers = 0;
    Figures figures;
};

std::vector<DailyTable::Column> workColumns()
{
    return {{statisticsKeyName(GroupKey::Surveyor), false, kNameLines},
            {Texts::tr("Sources staked")},
            {Texts::tr("Receivers staked")},
            {Texts::tr("Not planned")},
            {Texts::tr("Resurveys")},
            {Texts::tr("Repeats")},
            {Texts::tr("Within limits")},
            {Texts::tr("Over limit")},
            {Texts::tr("Not judged")}};
}

/// What each surveyor did, in the order of the groups.
std::vector<Work> workOf(const statistics::SurveySample& sample, const StatisticsGroups& surveyors)
{
    std::vector<Work> work(surveyors.figures.size());
    for (std::size_t group = 0; group < work.size(); ++group)
        work[group].figures = surveyors.figures[group];
    for (const statistics::Observation& result : sample.results) {
        if (result.kind != ResultKind::Staked)
            continue;
        Work& of = work[result.key(GroupKey::Surveyor)];
        ++(result.key(GroupKey::PointKind) == 0 ? of.sources : of.receivers);
    }
    return work;
}

QStringList workRow(const QString& name, const Work& work)
{
    const Figures& of = work.figures;
    return {name,
            count(work.sources),
            count(work.receivers),
            count(of.of(ResultKind::Unplanned)),
            count(of.of(ResultKind::Resurvey)),
            count(of.of(ResultKind::Repeat)),
            count(of.first(Verdict::WithinLimits)),
            count(of.first(Verdict::Failed)),
            count(of.first(Verdict::NotJudged))};
}

const StatisticsGroups& groupsOf(const StatisticsFigures& figures, GroupKey key)
{
    return *std::find_if(figures.groups.begin(), figures.groups.end(),
                         [key](const StatisticsGroups& groups) { return groups.key == key; });
}

QStringList statisticsRow(const QString& name, const StatisticsRow& row)
{
    QStringList cells{name};
    for (const char* const caption : kStatistics)
        cells << statisticsColumn(caption).shownText(row);
    return cells;
}

QString titleOf(const DailyFigures& figures, DailySpan span, DailyKey key)
{
    const bool isSurveyor = key == DailyKey::Surveyor;
    if (span == DailySpan::Total)
        return isSurveyor ? Texts::tr("Statistics by surveyor, until the end of the day")
                          : Texts::tr("Statistics by rover, until the end of the day");
    return (isSurveyor ? Texts::tr("Statistics by surveyor on %1")
                       : Texts::tr("Statistics by rover on %1"))
        .arg(figures.dayText());
}

} // namespace

DailyValues dailyHead(const ReportInput& input, const DailyFigures& figures)
{
    DailyValues values{
        {Texts::tr("Project"), input.projectName},
        {Texts::tr("Day"), figures.day().isValid()
                               ? Texts::tr("%1, in the zone %2").arg(figures.dayText(), shownZone())
                               : Texts::tr("none")},
        {Texts::tr("Coordinate system"), systemNameOf(input.coordParameters)}};
    if (!input.choice.surveyors.isEmpty())
        values.emplace_back(Texts::tr("Surveyors"),
                            input.choice.surveyors.join(QLatin1String(", ")));
    values.emplace_back(Texts::tr("Made by"), HistoryAuthor::current().person);
    values.emplace_back(Texts::tr("Made on"), QDate::currentDate().toString(Qt::ISODate));
    values.emplace_back(Texts::tr("Program"), input.program);
    return values;
}

QString dailyGap(const ReportInput& input, const DailyFigures& figures)
{
    if (input.survey.empty())
        return Texts::tr("The project has no results.");
    if (figures.day().isValid())
        return Texts::tr("There is no result of this day.");
    const ReportChoice& choice = input.choice;
    return choice.fromMs || choice.untilMs || !choice.surveyors.isEmpty()
               ? Texts::tr("No result of the chosen period and surveyors has a time.")
               : Texts::tr("No result has a time, so that there is no day to report.");
}

DailyValues dailyProgress(const DailyFigures& figures)
{
    const StatisticsFigures& total = figures.total();
    const statistics::DesignCount& design = total.sample.design;
    const std::size_t done = design.designed - design.left;
    const statistics::Pace& pace = figures.pace();
    const QString unknown(QChar(0x2013));
    const QString share =
        statisticsColumn("Staked (%)").shown(statistics::shareOf(done, design.designed));
    return {{Texts::tr("Design points"), count(design.designed)},
            {Texts::tr("Staked until then"),
             share.isEmpty() ? count(done) : QStringLiteral("%1 (%2)").arg(count(done), share)},
            {Texts::tr("Still missing"), count(design.left)},
            {Texts::tr("Points a day at this pace"),
             pace.workingDays == 0 ? unknown
                                   : Texts::tr("%1 (mean of %2 days)")
                                         .arg(QString::number(std::lround(pace.pointsADay)),
                                              count(pace.workingDays))},
            {Texts::tr("Days of work still needed"),
             pace.daysNeeded ? count(*pace.daysNeeded) : unknown},
            {Texts::tr("Last day expected"),
             design.left > 0 && pace.endDay ? dayText(*pace.endDay) : unknown}};
}

DailyTable dailyWork(const DailyFigures& figures)
{
    const StatisticsFigures& ofDay = figures.ofDay();
    const StatisticsGroups& surveyors = groupsOf(ofDay, GroupKey::Surveyor);
    DailyTable table{Texts::tr("The day in numbers"), workColumns(), {}, true, {}};
    const std::vector<Work> work = workOf(ofDay.sample, surveyors);
    for (std::size_t group = 0; group < work.size(); ++group)
        table.rows.push_back(workRow(
            statisticsKeyText(GroupKey::Surveyor,
                              surveyors.grouping.value(ofDay.sample, group, GroupKey::Surveyor)),
            work[group]));
    shorten(table);
    Work sum;
    sum.figures = ofDay.all;
    for (const Work& of : work) {
        sum.sources += of.sources;
        sum.receivers += of.receivers;
    }
    table.rows.push_back(workRow(Texts::tr("All"), sum));
    return table;
}

DailyTable dailyStatistics(const DailyFigures& figures, DailySpan span, DailyKey key)
{
    const StatisticsFigures& of = span == DailySpan::OfDay ? figures.ofDay() : figures.total();
    const GroupKey groupKey = key == DailyKey::Surveyor ? GroupKey::Surveyor : GroupKey::Rover;
    const StatisticsGroups& groups = groupsOf(of, groupKey);
    DailyTable table{titleOf(figures, span, key),
                     {{statisticsKeyName(groupKey), false, kNameLines}},
                     {},
                     true,
                     {}};
    for (const char* const caption : kStatistics)
        table.columns.push_back({statisticsColumn(caption).captionText()});
    for (std::size_t group = 0; group < groups.figures.size(); ++group)
        table.rows.push_back(statisticsRow(
            statisticsKeyText(groupKey, groups.grouping.value(of.sample, group, groupKey)),
            {groups.figures[group], of.sample}));
    shorten(table);
    table.rows.push_back(statisticsRow(Texts::tr("All"), {of.all, of.sample}));
    return table;
}
