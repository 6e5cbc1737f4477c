#include "reports/QualityFailures.h"

#include "exchange/SolutionTypeNames.h"
#include "exchange/workbook/Workbook.h"
#include "model/PointNumber.h"
#include "reports/QualityFindings.h"
#include "reports/QualityTestNames.h"
#include "reports/ReportSteps.h"

#include <QCoreApplication>

#include <array>
#include <cmath>
#include <limits>

namespace {

using Form = SheetColumn::Form;
using Colour = Sheet::Colour;
using Limits = QualityLimits;
using Range = QualityLimits::Range;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(QualityReport)
};

/// What the cells of a row are made of.
struct Failure
{
    const statistics::Observation& result;
    const SurveyPoint& point;
    const statistics::WorstFault& worst;
    double planeUnitM;
    SolutionTypeNames& solutions;
};

struct Column
{
    const char* caption;
    Form form;
    int decimals;
    void (*write)(RowCells& row, const Failure& failure);
    /// Between which values a cell is good; null where no test judges it.
    Range (*allowed)(const Limits& limits) = nullptr;
};

constexpr double kMetresAKilometre = 1000;

constexpr double kNoLimit = std::numeric_limits<double>::infinity();

Range upTo(double limit)
{
    return {-kNoLimit, limit};
}

// The whole sheet: one line here is one column.
constexpr std::array kColumns{
    Column{QT_TRANSLATE_NOOP("QualityReport", "Line"), Form::Text, 0,
           [](RowCells& row, const Failure& f) { row.text(f.point.lineNumber); }},
    Column{
        QT_TRANSLATE_NOOP("QualityReport", "Point"), Form::Text, 0,
        [](RowCells& row, const Failure& f) { row.text(writtenPointNumber(f.point.pointNumber)); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Kind"), Form::Code, 0,
           [](RowCells& row, const Failure& f) { row.text(f.point.pointMark != 0 ? "R" : "S"); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Time"), Form::Time, 0,
           [](RowCells& row, const Failure& f) { row.timeOrBlank(f.point.dateTime); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Rover"), Form::Text, 0,
           [](RowCells& row, const Failure& f) { row.text(f.point.instrumentSerialNumber); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Surveyor"), Form::Text, 0,
           [](RowCells& row, const Failure& f) { row.text(f.point.surveyor); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Base"), Form::Text, 0,
           [](RowCells& row, const Failure& f) { row.text(f.point.baseStationId); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Code"), Form::Number, 0,
           [](RowCells& row, const Failure& f) { row.integer(f.result.code); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "What failed"), Form::Text, 0,
           [](RowCells& row, const Failure& f) { row.text(failedTestNames(f.result.code)); }},
    Column{
        QT_TRANSLATE_NOOP("QualityReport", "Worst test"), Form::Text, 0,
        [](RowCells& row, const Failure& f) { row.text(qualityTestNameWithUnit(*f.worst.test)); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Value"), Form::Number, 3,
           [](RowCells& row, const Failure& f) { row.number(f.worst.judged.value); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Limit"), Form::Number, 3,
           [](RowCells& row, const Failure& f) { row.number(f.worst.judged.limit); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Value / limit"), Form::Number, 2,
           [](RowCells& row, const Failure& f) { row.number(std::fabs(f.worst.ratio())); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "dE (m)"), Form::Number, 3,
           [](RowCells& row, const Failure& f) { row.number(f.result.eastM); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "dN (m)"), Form::Number, 3,
           [](RowCells& row, const Failure& f) { row.number(f.result.northM); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "d2D (m)"), Form::Number, 3,
           [](RowCells& row, const Failure& f) { row.number(f.result.distanceM); },
           [](const Limits& limits) { return upTo(limits.designHorizontalM + kRoundingM); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "dH (m)"), Form::Number, 3,
           [](RowCells& row, const Failure& f) { row.number(f.result.heightM); },
           [](const Limits& limits) { return upTo(limits.designVerticalM + kRoundingM); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Across (m)"), Form::Number, 3,
           [](RowCells& row, const Failure& f) {
               row.number(f.point.transversalDeviation * f.planeUnitM);
           },
           [](const Limits& limits) { return upTo(limits.receivers.acrossM); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Along (m)"), Form::Number, 3,
           [](RowCells& row, const Failure& f) {
               row.number(f.point.longitudinalDeviation * f.planeUnitM);
           },
           [](const Limits& limits) { return upTo(limits.receivers.alongM); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Horizontal accuracy (m)"), Form::Number, 3,
           [](RowCells& row, const Failure& f) { row.number(f.point.horizontalAccuracy); },
           [](const Limits& limits) { return upTo(limits.hrmsM); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Vertical accuracy (m)"), Form::Number, 3,
           [](RowCells& row, const Failure& f) { row.number(f.point.verticalAccuracy); },
           [](const Limits& limits) { return upTo(limits.vrmsM); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "PDOP"), Form::Number, 2,
           [](RowCells& row, const Failure& f) { row.number(f.point.pdop); },
           [](const Limits& limits) { return limits.pdop; }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "HDOP"), Form::Number, 2,
           [](RowCells& row, const Failure& f) { row.number(f.point.hdop); },
           [](const Limits& limits) { return limits.hdop; }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "VDOP"), Form::Number, 2,
           [](RowCells& row, const Failure& f) { row.number(f.point.vdop); },
           [](const Limits& limits) { return limits.vdop; }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Satellites"), Form::Number, 0,
           [](RowCells& row, const Failure& f) { row.integer(f.point.satelliteNumber); },
           [](const Limits& limits) {
               return Range{limits.satellites, kNoLimit};
           }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Base (km)"), Form::Number, 2,
           [](RowCells& row, const Failure& f) {
               row.number(f.point.referenceDistance / kMetresAKilometre);
           },
           [](const Limits& limits) { return upTo(limits.baseDistanceM / kMetresAKilometre); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Antenna (m)"), Form::Number, 3,
           [](RowCells& row, const Failure& f) { row.number(f.point.antennaHeight); },
           [](const Limits& limits) { return limits.antennaM; }},
    Column{
        QT_TRANSLATE_NOOP("QualityReport", "Solution"), Form::Code, 0,
        [](RowCells& row, const Failure& f) { row.text(f.solutions.name(f.point.solutionType)); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Age (s)"), Form::Number, 1,
           [](RowCells& row, const Failure& f) { row.number(f.point.ageOfDiff); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Epochs"), Form::Number, 0,
           [](RowCells& row, const Failure& f) { row.integer(f.point.epochNumber); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Obstacle"), Form::Text, 0,
           [](RowCells& row, const Failure& f) { row.text(f.point.obstacle); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Remarks"), Form::Text, 0,
           [](RowCells& row, const Failure& f) { row.text(f.point.remarks); }},
    Column{QT_TRANSLATE_NOOP("QualityReport", "Decision"), Form::Code, 0,
           [](RowCells& row, const Failure& /*failure*/) { row.blank(); }},
};

/// What the user may decide about a point.
struct Decision
{
    const char* text;
    Colour colour;
};

constexpr std::array kDecisions{
    Decision{QT_TRANSLATE_NOOP("QualityReport", "accept"), Colour::Good},
    Decision{QT_TRANSLATE_NOOP("QualityReport", "stake again"), Colour::Fault},
    Decision{QT_TRANSLATE_NOOP("QualityReport", "reject"), Colour::Fault},
    Decision{QT_TRANSLATE_NOOP("QualityReport", "ask"), Colour::Warning},
};

Sheet& addSheet(Workbook& book)
{
    constexpr double kDecisionWidth = 16;
    std::vector<SheetColumn> columns;
    for (const Column& column : kColumns)
        columns.push_back({Texts::tr(column.caption), column.form, column.decimals});
    columns.back().width = kDecisionWidth;
    return book.addSheet(Texts::tr("Failures"), std::move(columns), {.frozenColumns = 2});
}

/// So that the values that failed are seen among all the others.
void colourFaults(Sheet& sheet, const Limits& limits)
{
    for (std::size_t i = 0; i < kColumns.size(); ++i) {
        if (kColumns[i].allowed == nullptr)
            continue;
        const Range range = kColumns[i].allowed(limits);
        if (std::isfinite(range.max))
            sheet.colourAbove(i, range.max);
        if (std::isfinite(range.min))
            sheet.colourBelow(i, range.min);
    }
}

void addDecisions(Sheet& sheet)
{
    constexpr std::size_t kColumn = kColumns.size() - 1;
    QStringList texts;
    for (const Decision& decision : kDecisions) {
        texts << Texts::tr(decision.text);
        sheet.colourText(kColumn, texts.back(), decision.colour);
    }
    sheet.addPickList(kColumn, texts);
}

} // namespace

bool addFailuresSheet(Workbook& book, const QualityFindings& findings, ReportSteps& steps)
{
    Sheet& sheet = addSheet(book);
    colourFaults(sheet, findings.sample.limits);
    addDecisions(sheet);
    SolutionTypeNames solutions;
    for (const QualityFailure& failure : findings.failures) {
        const statistics::Observation& result = findings.resultOf(failure);
        const Failure row{result, *result.point, failure.worst, findings.sample.limits.planeUnitM,
                          solutions};
        for (const Column& column : kColumns)
            column.write(sheet, row);
        sheet.endRow();
        if (!steps.next())
            return false;
    }
    return true;
}
