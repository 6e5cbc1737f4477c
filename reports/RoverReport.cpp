#include "reports/RoverReport.h"

#include "exchange/ShownTimes.h"
#include "exchange/workbook/Workbook.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "quality/QualityLimits.h"
#include "quality/statistics/RoverLog.h"
#include "reports/ReportKinds.h"
#include "reports/ReportSheets.h"
#include "reports/ReportSteps.h"
#include "reports/RoverBases.h"
#include "reports/RoverDays.h"
#include "reports/RoverGaps.h"
#include "reports/RoverSessions.h"
#include "reports/RoverWords.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using namespace statistics;
using Form = SheetColumn::Form;

constexpr std::size_t kMostRovers = Page::kColumns - 2; // beside the day and the sum
constexpr std::size_t kMostDays = 16;                   // that can be read on one page

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RoverReport)
};

SurveySample readSample(const ReportInput& input)
{
    QualityLimits limits = QualityLimits::from(input.qualityParameters);
    limits.planeUnitM = lum::lengthUnitOf(input.coordParameters).metres;
    return sampleOf({input.design, input.survey, limits,
                     std::string(qualityParameter(input.qualityParameters, kResurveyCode)),
                     shownTimes(),
                     [&input](const SurveyPoint& point) { return input.includes(point); }});
}

/// \param cells those of a row behind its first one
void writeRow(RowCells& cells, const RoverDays::Row& row)
{
    for (const std::size_t points : row.points)
        cells.number(double(points));
    cells.number(double(row.total())).endRow();
}

class Report
{
public:
    Report(const QString& path, const ReportInput& input)
        : m_input(input), m_sample(readSample(input)), m_sessions(roverSessionsOf(m_sample)),
          m_gaps(roverGapsOf(m_sample)), m_bases(basesOf(m_sample)),
          m_days(roverDaysOf(m_sample, kMostRovers, kMostDays)),
          m_book(path, {findReportKind("rover")->captionText(), input.projectName, input.program}),
          m_steps(input, m_book, m_sessions.size() + m_gaps.size() + m_bases.size())
    {
    }

    Outcome write();

private:
    bool writeSheets();
    void writeSummary(Page& page);
    void writeNumbers(Page& page);
    void writeDays(Page& page);
    void writeWork(Page& page);
    void writeNotes(Page& page);
    void writeChart(Page& page, std::uint32_t lastRow);
    [[nodiscard]] QStringList columnNames() const;
    [[nodiscard]] std::vector<FigureDefinition> definitions() const;
    [[nodiscard]] QString notice() const;
    [[nodiscard]] std::size_t judged() const;
    [[nodiscard]] std::size_t moved() const
    {
        return std::size_t(std::count_if(m_bases.begin(), m_bases.end(), hasMoved));
    }

    const ReportInput& m_input;
    SurveySample m_sample;
    std::vector<RoverSession> m_sessions;
    std::vector<RoverGap> m_gaps;
    std::vector<BaseUse> m_bases;
    RoverDays m_days;
    Workbook m_book;
    ReportSteps m_steps;
};

Outcome Report::write()
{
    Page& summary = addSummary(m_book);
    if (writeSheets()) {
        addLimitsSheet(m_book, m_input, definitions());
        writeSummary(summary);
    }
    return m_steps.finish(notice());
}

bool Report::writeSheets()
{
    const QualityLimits& limits = m_sample.limits;
    const QString unit = lum::toQString(symbolOf(lum::lengthUnitOf(m_input.coordParameters)));
    return writeRoverSessions(m_book, m_sessions, limits, m_steps) &&
           writeRoverGaps(m_book, m_gaps, limits.planeUnitM, m_steps) &&
           writeRoverBases(m_book, m_bases, m_sessions, limits, unit, m_steps);
}

std::size_t Report::judged() const
{
    const auto isJudged = [](const Observation& result) {
        return result.verdict != Verdict::NotJudged;
    };
    return std::size_t(std::count_if(m_sample.results.begin(), m_sample.results.end(), isJudged));
}

void Report::writeSummary(Page& page)
{
    writeSummaryHead(page, findReportKind("rover")->captionText(), m_input,
                     {judged(), m_sample.results.size() - judged(),
                      Texts::tr("These results have no design position, or a value that is no "
                                "number.")});
    writeNumbers(page);
    if (!m_sample.results.empty())
        writeDays(page);
}

void Report::writeNumbers(Page& page)
{
    const auto different = [this](GroupKey key) { return double(m_sample.valuesOf(key).size()); };
    const bool hasUnknown = m_days.withoutTime.total() > 0;
    page.addChapter(Texts::tr("Work"));
    page.beginTable({{Texts::tr("Points"), Form::Number},
                     {Texts::tr("Days"), Form::Number},
                     {Texts::tr("Rovers"), Form::Number},
                     {Texts::tr("Surveyors"), Form::Number},
                     {Texts::tr("Sessions"), Form::Number},
                     {Texts::tr("Gaps over %1 min").arg(int(kGapMinutes)), Form::Number},
                     {Texts::tr("Bases"), Form::Number},
                     {Texts::tr("Bases moved"), Form::Number}});
    page.number(double(m_sample.results.size()))
        .number(different(GroupKey::Day) - (hasUnknown ? 1 : 0))
        .number(different(GroupKey::Rover))
        .number(different(GroupKey::Surveyor))
        .number(double(m_sessions.size()))
        .number(double(m_gaps.size()))
        .number(different(GroupKey::Base))
        .number(double(moved()))
        .endRow();
}

QStringList Report::columnNames() const
{
    QStringList names;
    for (const std::string& rover : m_days.rovers)
        names << roverLogName(rover);
    if (m_days.otherRovers > 0)
        names << Texts::tr("Others (%1)").arg(m_days.otherRovers);
    return names;
}

void Report::writeDays(Page& page)
{
    page.addChapter(Texts::tr("Points by day and rover"));
    std::vector<SheetColumn> columns{{Texts::tr("Day"), Form::Date}};
    for (const QString& name : columnNames())
        columns.push_back({name, Form::Number});
    columns.push_back({Texts::tr("Total"), Form::Number});
    page.beginTable(std::move(columns));
    if (m_days.earlierDays > 0)
        writeRow(page.text(Texts::tr("Earlier days (%1)").arg(m_days.earlierDays)), m_days.earlier);
    for (const RoverDays::Row& row : m_days.days)
        writeRow(page.day(row.day), row);
    const std::uint32_t lastDay = page.cells(0).lastRow;
    if (m_days.withoutTime.total() > 0)
        writeRow(page.text(Texts::tr("Without a time")), m_days.withoutTime);
    writeRow(page.text(Texts::tr("Total")), m_days.all);
    writeWork(page);
    writeNotes(page);
    if (!m_days.days.empty())
        writeChart(page, lastDay);
}

void Report::writeWork(Page& page)
{
    using Work = RoverDays::Work;
    const std::pair<QString, double (*)(const Work&)> rows[] = {
        {Texts::tr("Failed"), [](const Work& work) { return double(work.failed); }},
        {Texts::tr("Hours"), [](const Work& work) { return work.hours; }},
        {Texts::tr("Points an hour"), [](const Work& work) { return work.pointsAnHour(); }}};
    for (const auto& [caption, figure] : rows) {
        page.text(caption);
        for (const Work& work : m_days.work)
            page.number(figure(work));
        page.endRow();
    }
}

void Report::writeNotes(Page& page)
{
    if (m_days.earlierDays > 0)
        page.addNote(Texts::tr("The last %1 days with points are shown, and the sum of the earlier "
                               "ones; the sheet \"Sessions\" has all.")
                         .arg(m_days.days.size()));
    if (m_days.withoutTime.total() > 0)
        page.addNote(Texts::tr("Results without a time: %1. They belong to no day and no gap; "
                               "their sessions have no hours.")
                         .arg(m_days.withoutTime.total()));
}

/// \param lastRow the page's row of the last day
void Report::writeChart(Page& page, std::uint32_t lastRow)
{
    const auto daysOf = [&](std::size_t column) {
        CellRange cells = page.cells(column);
        cells.firstRow += m_days.earlierDays > 0 ? 1 : 0;
        cells.lastRow = lastRow;
        return cells;
    };
    Chart chart{Chart::Kind::StackedColumns, Texts::tr("Points a day by rover"), {}};
    chart.hasDays = true;
    chart.valueAxis = Texts::tr("Points");
    std::size_t column = 0;
    for (const QString& name : columnNames())
        chart.series.push_back({name, daysOf(0), daysOf(++column)});
    page.addCharts({chart});
}

QString Report::notice() const
{
    QString text = Texts::tr("Sessions: %1, gaps over %2 minutes: %3, bases: %4, of these moved: "
                             "%5.")
                       .arg(lum::groupedNumber(m_sessions.size()),
                            lum::groupedNumber(int(kGapMinutes)), lum::groupedNumber(m_gaps.size()),
                            lum::groupedNumber(m_bases.size()), lum::groupedNumber(moved()));
    if (const std::size_t count = m_days.withoutTime.total(); count > 0)
        text += QLatin1Char(' ') +
                Texts::tr("Results without a time: %1.").arg(lum::groupedNumber(count));
    return text;
}

std::vector<FigureDefinition> Report::definitions() const
{
    return {
        {Texts::tr("Session"),
         Texts::tr("The results of a day, a rover, a surveyor and a base. Days begin at midnight "
                   "in the zone of the times.")},
        {Texts::tr("Hours"), Texts::tr("From the first to the last result of a session; 0 of a "
                                       "single one, and none of results without a time.")},
        {Texts::tr("Points"),
         Texts::tr("Results of all kinds, also resurveys (the code re_code in the number) and "
                   "repeats (a number that begins with C). R is receivers, S sources.")},
        {Texts::tr("Points an hour"),
         Texts::tr("Points / hours. On the summary, the hours of a rover are those from its first "
                   "to its last result of each day, whatever the base.")},
        {Texts::tr("Longest gap"), Texts::tr("The longest time between two results of a session, "
                                             "in minutes.")},
        {Texts::tr("Gaps"),
         Texts::tr("Times of more than %1 minutes without a result of a rover and surveyor on a "
                   "day, whatever the base. The distance tells a drive from a rest.")
             .arg(int(kGapMinutes))},
        {Texts::tr("Failed, not judged"),
         Texts::tr("Failed: out of at least one limit above. Not judged: no design position, or a "
                   "value that is no number, and out of no limit.")},
        {Texts::tr("Mean, worst, fewest"),
         Texts::tr("Of all results of the session whose value is a number; red when it is out of "
                   "its limit above.")},
        {Texts::tr("Antenna height"),
         Texts::tr("The different heights used, and how often the height changed from a result to "
                   "the next.")},
        {Texts::tr("Moved"),
         Texts::tr("Results put the base more than %1 m from where its first result does, on "
                   "the plane or in height. Nothing is said of results that name no base.")
             .arg(kBaseMovedM)},
    };
}

} // namespace

Outcome writeRoverLog(const QString& path, const ReportInput& input)
{
    return Report(path, input).write();
}
