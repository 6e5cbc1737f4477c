#include "reports/StatisticsDistribution.h"

#include "exchange/workbook/Workbook.h"
#include "reports/StatisticsFigures.h"

#include <QCoreApplication>

namespace {

using Form = SheetColumn::Form;
using statistics::Distribution;
using statistics::kDistanceClassesM;

constexpr std::size_t kColumnsOfKind = 4;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsReport)
};

QString className(std::size_t distanceClass)
{
    const auto end = [](std::size_t place) { return QString::number(kDistanceClassesM[place]); };
    if (distanceClass == 0)
        return Texts::tr("up to %1").arg(end(0));
    if (distanceClass == kDistanceClassesM.size())
        return Texts::tr("over %1").arg(end(distanceClass - 1));
    return Texts::tr("%1 to %2").arg(end(distanceClass - 1), end(distanceClass));
}

/// All, receivers, sources.
std::array<Distribution, 3> distributions(const StatisticsFigures& figures)
{
    return {figures.distribution, figures.distributionOfKind[1], figures.distributionOfKind[0]};
}

void addTotals(Sheet& sheet, const StatisticsFigures& figures)
{
    sheet.endTable();
    sheet.text(Texts::tr("Together"));
    for (const Distribution& kind : distributions(figures))
        sheet.number(double(kind.judged())).blank().blank().blank();
    sheet.endRow();
    sheet.text(Texts::tr("Without a distance"));
    for (const Distribution& kind : distributions(figures))
        sheet.number(double(kind.notJudged)).blank().blank().blank();
    sheet.endRow();
}

} // namespace

Chart addStatisticsDistribution(Workbook& book, const StatisticsFigures& figures)
{
    std::vector<SheetColumn> columns{{Texts::tr("Distance (m)"), Form::Code}};
    for (std::size_t kind = 0; kind < distributions(figures).size(); ++kind) {
        columns.push_back({Texts::tr("Points"), Form::Number});
        columns.push_back({Texts::tr("Share (%)"), Form::Percent, 1});
        columns.push_back({Texts::tr("Cumulated"), Form::Number});
        columns.push_back({Texts::tr("Cumulated (%)"), Form::Percent, 1});
    }
    SheetLook look{.title = Texts::tr("Distance from the design"),
                   .groups = {{QString(), 1},
                              {Texts::tr("All"), kColumnsOfKind},
                              {Texts::tr("Receivers"), kColumnsOfKind},
                              {Texts::tr("Sources"), kColumnsOfKind}},
                   .frozenColumns = 1,
                   .hasFilter = false};
    Sheet& sheet = book.addSheet(Texts::tr("Distribution"), std::move(columns), look);
    for (std::size_t i = 0; i <= kDistanceClassesM.size(); ++i) {
        sheet.text(className(i));
        for (const Distribution& kind : distributions(figures))
            sheet.number(double(kind.counts[i]))
                .number(statistics::shareOf(kind.counts[i], kind.judged()))
                .number(double(kind.cumulated(i)))
                .number(statistics::shareOf(kind.cumulated(i), kind.judged()));
        sheet.endRow();
    }
    addTotals(sheet, figures);
    return {Chart::Kind::StackedColumns,
            Texts::tr("Distances from the design"),
            {{Texts::tr("Receivers"), sheet.cells(0), sheet.cells(1 + kColumnsOfKind)},
             {Texts::tr("Sources"), sheet.cells(0), sheet.cells(1 + 2 * kColumnsOfKind)}},
            Texts::tr("Distance (m)"),
            Texts::tr("Points")};
}
