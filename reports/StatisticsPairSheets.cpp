#include "reports/StatisticsPairSheets.h"

#include "exchange/workbook/Workbook.h"
#include "model/PointNumber.h"
#include "quality/ResurveyTolerances.h"
#include "reports/ReportInput.h"
#include "reports/ReportSteps.h"
#include "reports/StatisticsFigures.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace {

using Form = SheetColumn::Form;
using statistics::MeasuredPair;
using statistics::Moments;
using statistics::PairFigures;

// Places in `columns`.
constexpr std::size_t kFinding = 4;
constexpr std::size_t kEast = 5;
constexpr std::size_t kNorth = 6;
constexpr std::size_t kHeight = 8;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsReport)
};

std::vector<SheetColumn> columns()
{
    return {{Texts::tr("Line")},
            {Texts::tr("First point")},
            {Texts::tr("Second point")},
            {Texts::tr("Kind"), Form::Code},
            {Texts::tr("Finding")},
            {Texts::tr("dE second - first (m)"), Form::Number, 3},
            {Texts::tr("dN second - first (m)"), Form::Number, 3},
            {Texts::tr("2D (m)"), Form::Number, 3},
            {Texts::tr("dH second - first (m)"), Form::Number, 3},
            {Texts::tr("First time"), Form::Time},
            {Texts::tr("Second time"), Form::Time},
            {Texts::tr("Hours between"), Form::Number, 1},
            {Texts::tr("First rover")},
            {Texts::tr("Second rover")},
            {Texts::tr("First surveyor")},
            {Texts::tr("Second surveyor")},
            {Texts::tr("First base")},
            {Texts::tr("Second base")}};
}

double hoursBetween(const SurveyPoint& first, const SurveyPoint& second)
{
    constexpr double kHourMs = 3600'000;
    return first.dateTime == 0 || second.dateTime == 0
               ? statistics::kUnknown
               : double(second.dateTime - first.dateTime) / kHourMs;
}

/// \param tolerances null when the differences are not judged
QString finding(const MeasuredPair& pair, const ResurveyTolerances* tolerances)
{
    if (tolerances == nullptr)
        return {};
    const auto exceeded = tolerances->exceededBy({pair.northM, pair.eastM, pair.heightM});
    const bool isBeyond = std::find(exceeded.begin(), exceeded.end(), true) != exceeded.end();
    return isBeyond ? Texts::tr("beyond tolerance") : QString();
}

/// \param first null when there is none
void addRow(Sheet& sheet, const SurveyPoint* first, const SurveyPoint& again,
            const QString& finding, const std::array<double, 4>& differences)
{
    static const SurveyPoint kNone;
    const SurveyPoint& before = first != nullptr ? *first : kNone;
    sheet.text(again.lineNumber)
        .text(writtenPointNumber(before.pointNumber))
        .text(writtenPointNumber(again.pointNumber))
        .text(again.pointMark != 0 ? "R" : "S")
        .text(finding);
    for (const double difference : differences)
        sheet.number(difference);
    sheet.timeOrBlank(before.dateTime)
        .timeOrBlank(again.dateTime)
        .number(hoursBetween(before, again))
        .text(before.instrumentSerialNumber)
        .text(again.instrumentSerialNumber)
        .text(before.surveyor)
        .text(again.surveyor)
        .text(before.baseStationId)
        .text(again.baseStationId)
        .endRow();
}

/// The figures of each difference, below its column.
void addFigures(Sheet& sheet, const PairFigures& figures)
{
    const std::array<const Moments*, 4> moments{&figures.east, &figures.north, &figures.distance,
                                                &figures.height};
    const auto add = [&](const QString& name, auto figureOf) {
        sheet.blank().blank().blank().blank().text(name);
        for (const Moments* const of : moments)
            sheet.number(figureOf(*of));
        sheet.endRow();
    };
    sheet.endTable();
    sheet.blank().blank().blank().blank().text(Texts::tr("Pairs"));
    for (const Moments* const of : moments) // a text, since the column has decimals
        sheet.text(QString::number(of->count()));
    sheet.endRow();
    add(Texts::tr("Mean"), [](const Moments& of) { return of.mean(); });
    add(Texts::tr("Std. dev."), [](const Moments& of) { return of.standardDeviation(); });
    add(Texts::tr("RMS"), [](const Moments& of) { return of.rms(); });
    add(Texts::tr("RMS / %1").arg(QStringLiteral("\u221A2")), statistics::precisionOfOne);
    add(Texts::tr("95 %"), [&](const Moments& of) {
        return &of == &figures.east       ? figures.eastP95
               : &of == &figures.north    ? figures.northP95
               : &of == &figures.distance ? figures.distanceP95
                                          : figures.heightP95;
    });
    add(Texts::tr("Maximum"), [](const Moments& of) { return of.largest(); });
}

void addPairs(Sheet& sheet, const StatisticsPairs& pairs, const ResurveyTolerances* tolerances,
              ReportSteps& steps)
{
    sheet.colourFilled(kFinding, Sheet::Colour::Warning);
    if (tolerances != nullptr) {
        sheet.colourAbove(kNorth, tolerances->metres[0] + kRoundingM);
        sheet.colourAbove(kEast, tolerances->metres[1] + kRoundingM);
        sheet.colourAbove(kHeight, tolerances->metres[2] + kRoundingM);
    }
    for (const MeasuredPair& pair : pairs.found.pairs) {
        addRow(sheet, pair.first, *pair.again, finding(pair, tolerances),
               {pair.eastM, pair.northM, pair.distanceM, pair.heightM});
        if (!steps.next())
            return;
    }
    constexpr double kNone = statistics::kUnknown;
    for (const SurveyPoint* const again : pairs.found.alone) {
        addRow(sheet, nullptr, *again, Texts::tr("no first measurement"),
               {kNone, kNone, kNone, kNone});
        if (!steps.next())
            return;
    }
    addFigures(sheet, pairs.figures);
}

} // namespace

void addStatisticsPairSheets(Workbook& book, const ReportInput& input,
                             const StatisticsFigures& figures, ReportSteps& steps)
{
    // The differences of the pairs are metres already.
    const ResurveyTolerances tolerances = ResurveyTolerances::from(input.qualityParameters, 1);
    addPairs(book.addSheet(Texts::tr("Resurveys"), columns(), {.frozenColumns = 3}),
             figures.resurveys, &tolerances, steps);
    addPairs(book.addSheet(Texts::tr("Repeats"), columns(), {.frozenColumns = 3}), figures.repeats,
             nullptr, steps);
}
