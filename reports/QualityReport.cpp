#include "reports/QualityReport.h"

#include "exchange/workbook/Workbook.h"
#include "lum_sdk/GroupedNumber.h"
#include "reports/QualityFailures.h"
#include "reports/QualityFindings.h"
#include "reports/QualityLines.h"
#include "reports/QualitySummary.h"
#include "reports/ReportKinds.h"
#include "reports/ReportSheets.h"
#include "reports/ReportSteps.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(QualityReport)
};

std::vector<FigureDefinition> countDefinitions()
{
    return {
        {Texts::tr("Results"),
         Texts::tr("All results of the period and surveyors, with resurveys and check "
                   "measurements. Each is judged anew by the limits above.")},
        {Texts::tr("Designed, staked, left"),
         Texts::tr("Design points; those with a result of exactly their line and point number, "
                   "whenever and by whomever it was measured; and those without.")},
        {Texts::tr("Within limits"),
         Texts::tr("Results that passed every test. A value on its limit "
                   "passes.")},
        {Texts::tr("Failed"), Texts::tr("Results that failed one test or more.")},
        {Texts::tr("Not judged"),
         Texts::tr("Results that failed no test, but have no design position or a value that "
                   "is no number.")},
        {Texts::tr("Failed (%)"),
         Texts::tr("Of points and lines: failed of within limits and failed. Of a test: failed of "
                   "tested.")},
        {Texts::tr("Tested"),
         Texts::tr("Results with a value for this test. Those without a design position are "
                   "not tested for their distance from it.")}};
}

std::vector<FigureDefinition> codeDefinitions()
{
    return {
        {Texts::tr("Code"),
         Texts::tr("The quality code of the result. Each of its digits, counted from the right, "
                   "is a family of tests:")},
        {Texts::tr("Code, digit 1"),
         Texts::tr("The position from the design: 1 distance, 2 height, 3 both.")},
        {Texts::tr("Code, digit 2"), Texts::tr("The resurvey; always 0 here.")},
        {Texts::tr("Code, digit 3"), Texts::tr("1 the base is too far.")},
        {Texts::tr("Code, digit 4"), Texts::tr("The accuracy: 1 horizontal, 2 vertical, 3 "
                                               "both.")},
        {Texts::tr("Code, digit 5"), Texts::tr("The antenna: 1 too high, 2 too low.")},
        {Texts::tr("Code, digit 6"), Texts::tr("1 PDOP, 2 HDOP, 4 VDOP; of several ones the sum.")},
        {Texts::tr("Code, digit 7"), Texts::tr("1 too few satellites.")},
        {Texts::tr("Code, digit 8"),
         Texts::tr("The deviation from the line: 1 across, 2 along, 3 both.")}};
}

std::vector<FigureDefinition> failureDefinitions()
{
    return {
        {Texts::tr("Worst test"),
         Texts::tr("The failed test whose value is the most times over its "
                   "limit, or under it.")},
        {Texts::tr("Value, limit"), Texts::tr("Those of the worst test, in the unit behind its "
                                              "name; a negative value keeps its sign.")},
        {Texts::tr("Value / limit"), Texts::tr("Without a sign: above 1 when the value is too "
                                               "large, below 1 when it is too small.")},
        {Texts::tr("dE, dN, dH"), Texts::tr("Measured minus design, in metres: to the east, to the "
                                            "north, upwards.")},
        {Texts::tr("d2D"), Texts::tr("The distance in the plane from the design to the measured "
                                     "position, in metres.")},
        {Texts::tr("Across, along"),
         Texts::tr("Metres beside the line, and metres along it from the point's place, as the "
                   "rover recorded them.")},
        {Texts::tr("Base (km)"), Texts::tr("The distance from the base station.")},
        {Texts::tr("Red values"), Texts::tr("They are outside their limits.")},
        {Texts::tr("Decision"),
         Texts::tr("Yours: choose accept, stake again, reject or ask in each row.")}};
}

std::vector<FigureDefinition> lineDefinitions()
{
    return {
        {Texts::tr("Verdict: has failed points"),
         Texts::tr("A result of the line failed; \"not complete\": design points are left, too.")},
        {Texts::tr("Verdict: not staked, not complete"),
         Texts::tr("No result failed, but all, or some, of the line's design points are left.")},
        {Texts::tr("Verdict: not in the design"),
         Texts::tr("Results, none of them failed, on a line that has no design points.")},
        {Texts::tr("Verdict: no result chosen"),
         Texts::tr("The line is staked, but not in this period or by these surveyors.")},
        {Texts::tr("Verdict: not all judged"),
         Texts::tr("The line is staked, and no result failed, but some were not judged.")},
        {Texts::tr("Verdict: in order"),
         Texts::tr("Every design point of the line is staked, and all results are within limits.")},
        {Texts::tr("Worst test and point of a line"),
         Texts::tr("The result of the line that is the most times beyond its limit.")}};
}

std::vector<FigureDefinition> definitions()
{
    std::vector<FigureDefinition> all = countDefinitions();
    for (const auto& more : {codeDefinitions(), failureDefinitions(), lineDefinitions()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

QString noticeOf(const QualityFindings& findings)
{
    const auto lines = std::count_if(findings.ofLine.begin(), findings.ofLine.end(),
                                     [](const auto& line) { return failedOf(line) > 0; });
    return Texts::tr("Results judged: %1, failed: %2, on lines: %3, not judged: %4.")
        .arg(lum::groupedNumber(judgedOf(findings.all)),
             lum::groupedNumber(findings.failures.size()), lum::groupedNumber(lines),
             lum::groupedNumber(findings.all.all(statistics::Verdict::NotJudged)));
}

} // namespace

Outcome writeQualityReport(const QString& path, const ReportInput& input)
{
    const QualityFindings findings(input);
    Workbook book(path,
                  {findReportKind("quality")->captionText(), input.projectName, input.program});
    ReportSteps steps(input, book, findings.failures.size() + findings.ofLine.size());
    Page& summary = addSummary(book);
    if (addFailuresSheet(book, findings, steps) && addLinesSheet(book, findings, steps)) {
        addLimitsSheet(book, input, definitions());
        writeQualitySummary(summary, input, findings);
    }
    return steps.finish(noticeOf(findings));
}
