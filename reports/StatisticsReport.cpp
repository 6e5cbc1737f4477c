#include "reports/StatisticsReport.h"

#include "exchange/workbook/Workbook.h"
#include "lum_sdk/GroupedNumber.h"
#include "reports/ReportInput.h"
#include "reports/ReportKinds.h"
#include "reports/ReportSheets.h"
#include "reports/ReportSteps.h"
#include "reports/StatisticsDistribution.h"
#include "reports/StatisticsFigures.h"
#include "reports/StatisticsGroupSheets.h"
#include "reports/StatisticsPairSheets.h"
#include "reports/StatisticsSummary.h"
#include "reports/StatisticsTerms.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsReport)
};

std::size_t rowsOf(const StatisticsFigures& figures)
{
    std::size_t rows = 0;
    for (const StatisticsGroups& groups : figures.groups)
        rows += groups.figures.size();
    for (const StatisticsPairs* const pairs : {&figures.resurveys, &figures.repeats})
        rows += pairs->found.pairs.size() + pairs->found.alone.size();
    return rows;
}

QString notice(const StatisticsFigures& figures)
{
    using statistics::Verdict;
    const statistics::Figures& all = figures.all;
    const std::size_t withinLimits = all.first(Verdict::WithinLimits);
    return Texts::tr("Staked: %1 of %2 design points, within limits: %3 of %4 judged, lines, days, "
                     "rovers, surveyors and bases with a shift: %5.")
        .arg(lum::groupedNumber(all.of(statistics::ResultKind::Staked)),
             lum::groupedNumber(all.design.designed), lum::groupedNumber(withinLimits),
             lum::groupedNumber(withinLimits + all.first(Verdict::Failed)),
             lum::groupedNumber(countShifts(figures)));
}

} // namespace

Outcome writeQualityStatistics(const QString& path, const ReportInput& input)
{
    const StatisticsFigures figures = StatisticsFigures::from(input);
    const QString title = findReportKind("statistics")->captionText();
    Workbook book(path, {title, input.projectName, input.program});
    ReportSteps steps(input, book, rowsOf(figures));
    Page& summary = addSummary(book);
    Chart progress = addStatisticsGroupSheets(book, figures, steps);
    Chart histogram = addStatisticsDistribution(book, figures);
    addStatisticsPairSheets(book, input, figures, steps);
    addLimitsSheet(book, input, statisticsTerms());
    writeStatisticsSummary(summary, title, input, figures,
                           {std::move(progress), std::move(histogram)});
    return steps.finish(notice(figures));
}
