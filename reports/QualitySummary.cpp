#include "reports/QualitySummary.h"

#include "exchange/workbook/Page.h"
#include "reports/QualityFindings.h"
#include "reports/QualityTestNames.h"
#include "reports/ReportInput.h"
#include "reports/ReportKinds.h"
#include "reports/ReportSheets.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using Form = SheetColumn::Form;
using statistics::Figures;
using statistics::TestCount;
using statistics::TestFigures;
using statistics::Verdict;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(QualityReport)
};

void writeHead(Page& page, const ReportInput& input, const Figures& all)
{
    writeSummaryHead(page, findReportKind("quality")->captionText(), input,
                     {judgedOf(all), all.all(Verdict::NotJudged),
                      Texts::tr("These results failed no test, but have no design position or a "
                                "value that is no number.")});
}

void writeKinds(Page& page, const ReportInput& input, const QualityFindings& findings)
{
    page.addChapter(Texts::tr("Points"));
    page.beginTable({{Texts::tr("Kind")},
                     {Texts::tr("Design points"), Form::Number},
                     {Texts::tr("Left"), Form::Number},
                     {Texts::tr("Results"), Form::Number},
                     {Texts::tr("Within limits"), Form::Number},
                     {Texts::tr("Failed"), Form::Number},
                     {Texts::tr("Failed (%)"), Form::Percent, 1},
                     {Texts::tr("Not judged"), Form::Number}});
    const std::pair<QString, const Figures&> rows[] = {{Texts::tr("Receivers"), findings.ofKind[1]},
                                                       {Texts::tr("Sources"), findings.ofKind[0]},
                                                       {Texts::tr("All"), findings.all}};
    for (const auto& [kind, figures] : rows)
        page.text(kind)
            .integer(std::int64_t(figures.design.designed))
            .integer(std::int64_t(figures.design.left))
            .integer(std::int64_t(figures.all()))
            .integer(std::int64_t(figures.all(Verdict::WithinLimits)))
            .integer(std::int64_t(failedOf(figures)))
            .number(shareFailedOf(figures))
            .integer(std::int64_t(figures.all(Verdict::NotJudged)))
            .endRow();
    if (input.choice.fromMs || input.choice.untilMs || !input.choice.surveyors.isEmpty())
        page.addNote(Texts::tr("What is left of the design is counted over all results; results "
                               "are those of the period and surveyors above."));
}

/// The tests that most results failed first.
std::vector<TestFigures> sortedTests(const QualityFindings& findings)
{
    std::vector<TestFigures> tests = findings.tests;
    std::stable_sort(tests.begin(), tests.end(), [](const TestFigures& a, const TestFigures& b) {
        return a.all().failed > b.all().failed;
    });
    return tests;
}

void writeTests(Page& page, const std::vector<TestFigures>& tests)
{
    page.addChapter(Texts::tr("Tests"));
    page.beginTable({{Texts::tr("Test")},
                     {Texts::tr("Tested"), Form::Number},
                     {Texts::tr("Failed"), Form::Number},
                     {Texts::tr("Failed (%)"), Form::Percent, 2},
                     {Texts::tr("Receivers failed / tested"), Form::Number},
                     {Texts::tr("Receivers (%)"), Form::Percent, 2},
                     {Texts::tr("Sources failed / tested"), Form::Number},
                     {Texts::tr("Sources (%)"), Form::Percent, 2}});
    for (const TestFigures& test : tests) {
        const TestCount all = test.all();
        page.text(qualityTestName(*test.test))
            .integer(std::int64_t(all.tested))
            .integer(std::int64_t(all.failed))
            .number(statistics::shareOf(all.failed, all.tested));
        for (const TestCount& count : {test.ofKind[1], test.ofKind[0]})
            page.text(QStringLiteral("%1 / %2").arg(count.failed).arg(count.tested))
                .number(statistics::shareOf(count.failed, count.tested));
        page.endRow();
    }
}

/// \param tests as `writeTests` wrote them
void addTestChart(Page& page, const std::vector<TestFigures>& tests)
{
    constexpr std::size_t kFailedColumn = 2;
    const auto failed = std::count_if(
        tests.begin(), tests.end(), [](const TestFigures& test) { return test.all().failed > 0; });
    if (failed == 0) {
        page.addNote(Texts::tr("No result failed a test."));
        return;
    }
    CellRange names = page.cells(0);
    CellRange counts = page.cells(kFailedColumn);
    names.lastRow = counts.lastRow = names.firstRow + std::uint32_t(failed) - 1;
    page.addCharts(
        {{Chart::Kind::Bars, Texts::tr("Failed results by test"), {{{}, names, counts}}}});
}

/// In two columns, so that the summary stays a page that can be read.
void writeWorstLines(Page& page, const QualityFindings& findings)
{
    const std::vector<std::size_t> worst = statistics::worstGroups(findings.ofLine);
    if (worst.empty())
        return;
    page.addChapter(Texts::tr("Lines with the largest share of failed results"));
    std::vector<SheetColumn> columns;
    for (int block = 0; block < 2; ++block) {
        columns.push_back({Texts::tr("Line"), block == 0 ? Form::Text : Form::Code});
        columns.push_back({Texts::tr("Judged"), Form::Number});
        columns.push_back({Texts::tr("Failed"), Form::Number});
        columns.push_back({Texts::tr("Failed (%)"), Form::Percent, 1});
    }
    page.beginTable(std::move(columns));
    const std::size_t rows = (worst.size() + 1) / 2;
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t i = row; i < worst.size(); i += rows) {
            const Figures& line = findings.ofLine[worst[i]];
            page.text(findings.nameOfLine(worst[i]))
                .integer(std::int64_t(judgedOf(line)))
                .integer(std::int64_t(failedOf(line)))
                .number(shareFailedOf(line));
        }
        page.endRow();
    }
}

} // namespace

void writeQualitySummary(Page& page, const ReportInput& input, const QualityFindings& findings)
{
    writeHead(page, input, findings.all);
    writeKinds(page, input, findings);
    const std::vector<TestFigures> tests = sortedTests(findings);
    writeTests(page, tests);
    addTestChart(page, tests);
    writeWorstLines(page, findings);
}
