#include "reports/StatisticsSummary.h"

#include "exchange/workbook/Page.h"
#include "model/PointNumber.h"
#include "reports/ReportInput.h"
#include "reports/ReportSheets.h"
#include "reports/StatisticsFigures.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

using Form = SheetColumn::Form;
using statistics::Figures;
using statistics::Moments;
using statistics::Observation;
using statistics::ResultKind;
using statistics::Verdict;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsReport)
};

std::array<std::pair<QString, const Figures*>, 3> kinds(const StatisticsFigures& figures)
{
    return {{{Texts::tr("Receivers"), &figures.ofKind[1]},
             {Texts::tr("Sources"), &figures.ofKind[0]},
             {Texts::tr("All"), &figures.all}}};
}

void writeProgress(Page& page, const ReportInput& input, const StatisticsFigures& figures)
{
    page.addChapter(Texts::tr("Progress"));
    page.beginTable({{Texts::tr("Kind")},
                     {Texts::tr("Designed"), Form::Number},
                     {Texts::tr("Staked"), Form::Number},
                     {Texts::tr("Staked (%)"), Form::Percent, 1},
                     {Texts::tr("Left"), Form::Number},
                     {Texts::tr("Not planned"), Form::Number},
                     {Texts::tr("Resurveys"), Form::Number},
                     {Texts::tr("Repeats"), Form::Number}});
    for (const auto& [kind, of] : kinds(figures))
        page.text(kind)
            .number(double(of->design.designed))
            .number(double(of->of(ResultKind::Staked)))
            .number(statistics::shareOf(of->of(ResultKind::Staked), of->design.designed))
            .number(double(of->design.left))
            .number(double(of->of(ResultKind::Unplanned)))
            .number(double(of->of(ResultKind::Resurvey)))
            .number(double(of->of(ResultKind::Repeat)))
            .endRow();
    const ReportChoice& choice = input.choice;
    if (choice.fromMs || choice.untilMs || !choice.surveyors.isEmpty())
        page.addNote(Texts::tr("Results are those of the period and surveyors above; what is left "
                               "is counted over the whole project."));
}

void writeQuality(Page& page, const StatisticsFigures& figures)
{
    page.addChapter(Texts::tr("Quality of the first measurements"));
    page.beginTable({{Texts::tr("Kind")},
                     {Texts::tr("Within limits"), Form::Number},
                     {Texts::tr("Over limit"), Form::Number},
                     {Texts::tr("Within limits (%)"), Form::Percent, 1},
                     {Texts::tr("Fixed (%)"), Form::Percent, 1},
                     {Texts::tr("Mean 2D (m)"), Form::Number, 3},
                     {Texts::tr("RMS 2D (m)"), Form::Number, 3},
                     {Texts::tr("95 % 2D (m)"), Form::Number, 3}});
    for (const auto& [kind, of] : kinds(figures))
        page.text(kind)
            .number(double(of->first(Verdict::WithinLimits)))
            .number(double(of->first(Verdict::Failed)))
            .number(of->shareWithinLimits())
            .number(of->shareFixed())
            .number(of->distance.mean())
            .number(of->distance.rms())
            .number(of->distanceP95)
            .endRow();
}

void writeDifferences(Page& page, const StatisticsFigures& figures)
{
    const Figures& all = figures.all;
    page.addChapter(Texts::tr("Differences from the design"));
    page.beginTable({{Texts::tr("Measured minus design")},
                     {Texts::tr("Mean (m)"), Form::Number, 3},
                     {Texts::tr("Std. dev. (m)"), Form::Number, 3},
                     {Texts::tr("RMS (m)"), Form::Number, 3},
                     {Texts::tr("95 % (m)"), Form::Number, 3},
                     {Texts::tr("Maximum (m)"), Form::Number, 3},
                     {Texts::tr("Line"), Form::Code},
                     {Texts::tr("Point"), Form::Code}});
    const std::tuple<QString, const Moments*, double> rows[] = {
        {Texts::tr("East"), &all.east, figures.p95(&Observation::eastM)},
        {Texts::tr("North"), &all.north, figures.p95(&Observation::northM)},
        {Texts::tr("Height"), &all.height, figures.p95(&Observation::heightM)},
        {Texts::tr("Distance 2D"), &all.distance, all.distanceP95}};
    for (const auto& [name, moments, p95] : rows) {
        page.text(name)
            .number(moments->mean())
            .number(moments->standardDeviation())
            .number(moments->rms())
            .number(p95)
            .number(moments->largest());
        if (const SurveyPoint* const point = figures.largestOf(*moments); point != nullptr)
            page.text(point->lineNumber).text(writtenPointNumber(point->pointNumber));
        page.endRow();
    }
}

struct Shift
{
    QString name;
    const Figures* figures = nullptr;
    double sizeM = 0; ///< the mean that is farthest from 0, of those that are shifted
};

double sizeOf(const Figures& figures)
{
    double size = 0;
    for (const Moments* const of : {&figures.east, &figures.north, &figures.height}) {
        if (hasShift(*of))
            size = std::max(size, std::fabs(of->mean()));
    }
    return size;
}

/// The largest first.
std::vector<Shift> shiftsOf(const StatisticsFigures& figures)
{
    std::vector<Shift> shifts;
    for (const StatisticsGroups& groups : figures.groups) {
        for (std::size_t group = 0; group < groups.figures.size(); ++group) {
            const Figures& of = groups.figures[group];
            if (!of.hasShift())
                continue;
            const auto& value = groups.grouping.value(figures.sample, group, groups.key);
            shifts.push_back({statisticsKeyName(groups.key) + QLatin1Char(' ') +
                                  statisticsKeyText(groups.key, value),
                              &of, sizeOf(of)});
        }
    }
    std::stable_sort(shifts.begin(), shifts.end(),
                     [](const Shift& a, const Shift& b) { return a.sizeM > b.sizeM; });
    if (figures.all.hasShift())
        shifts.insert(shifts.begin(), {Texts::tr("All"), &figures.all, sizeOf(figures.all)});
    return shifts;
}

void writeShifts(Page& page, const StatisticsFigures& figures)
{
    constexpr std::size_t kMost = 8;
    page.addChapter(Texts::tr("Constant shifts, the largest"));
    const std::vector<Shift> shifts = shiftsOf(figures);
    if (shifts.empty()) {
        page.addNote(Texts::tr("No line, day, rover, surveyor or base shows a constant shift."));
        return;
    }
    page.beginTable({{Texts::tr("Where")},
                     {Texts::tr("Points"), Form::Number},
                     {Texts::tr("Mean dE (m)"), Form::Number, 3},
                     {Texts::tr("Std. dev. dE (m)"), Form::Number, 3},
                     {Texts::tr("Mean dN (m)"), Form::Number, 3},
                     {Texts::tr("Std. dev. dN (m)"), Form::Number, 3},
                     {Texts::tr("Mean dH (m)"), Form::Number, 3},
                     {Texts::tr("Std. dev. dH (m)"), Form::Number, 3}});
    for (std::size_t i = 0; i < std::min(shifts.size(), kMost); ++i) {
        const Figures& of = *shifts[i].figures;
        page.text(shifts[i].name).number(double(of.first()));
        for (const Moments* const moments : {&of.east, &of.north, &of.height})
            page.number(moments->mean()).number(moments->standardDeviation());
        page.endRow();
    }
    if (shifts.size() > kMost)
        page.addNote(Texts::tr("Others, marked in the column Shift of the sheets: %1")
                         .arg(shifts.size() - kMost));
}

void writePairs(Page& page, const StatisticsFigures& figures)
{
    page.addChapter(Texts::tr("Points measured twice"));
    page.beginTable({{Texts::tr("Second minus first")},
                     {Texts::tr("Pairs"), Form::Number},
                     {Texts::tr("RMS dE (m)"), Form::Number, 3},
                     {Texts::tr("RMS dN (m)"), Form::Number, 3},
                     {Texts::tr("RMS dH (m)"), Form::Number, 3},
                     {Texts::tr("RMS 2D (m)"), Form::Number, 3},
                     {Texts::tr("2D of a single one (m)"), Form::Number, 3},
                     {Texts::tr("95 % 2D (m)"), Form::Number, 3}});
    const std::pair<QString, const StatisticsPairs*> rows[] = {
        {Texts::tr("Resurveys"), &figures.resurveys}, {Texts::tr("Repeats"), &figures.repeats}};
    for (const auto& [name, pairs] : rows)
        page.text(name)
            .number(double(pairs->found.pairs.size()))
            .number(pairs->figures.east.rms())
            .number(pairs->figures.north.rms())
            .number(pairs->figures.height.rms())
            .number(pairs->figures.distance.rms())
            .number(precisionOfOne(pairs->figures.distance))
            .number(pairs->figures.distanceP95)
            .endRow();
}

} // namespace

void writeStatisticsSummary(Page& page, const QString& title, const ReportInput& input,
                            const StatisticsFigures& figures, std::vector<Chart> charts)
{
    const Figures& all = figures.all;
    writeSummaryHead(
        page, title, input,
        {all.first(Verdict::WithinLimits) + all.first(Verdict::Failed),
         all.first(Verdict::NotJudged),
         Texts::tr("These results have no design position, or a value that is no number.")});
    writeProgress(page, input, figures);
    writeQuality(page, figures);
    writeDifferences(page, figures);
    std::erase_if(charts, [](const Chart& chart) { return chart.series.empty(); });
    page.addCharts(charts);
    writeShifts(page, figures);
    writePairs(page, figures);
}

std::size_t countShifts(const StatisticsFigures& figures)
{
    return shiftsOf(figures).size();
}
