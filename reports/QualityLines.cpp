#include "reports/QualityLines.h"

#include "exchange/workbook/Workbook.h"
#include "model/PointNumber.h"
#include "reports/QualityFindings.h"
#include "reports/QualityTestNames.h"
#include "reports/ReportSteps.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace {

using Form = SheetColumn::Form;
using Colour = Sheet::Colour;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(QualityReport)
};

enum class LineVerdict : std::uint8_t
{
    Failed,
    FailedAndIncomplete,
    NotStaked,
    Incomplete,
    Unplanned,
    NoResult,
    NotAllJudged,
    InOrder
};

struct VerdictWords
{
    const char* text;
    Colour colour;
};

/// By verdict.
constexpr std::array kVerdicts{
    VerdictWords{QT_TRANSLATE_NOOP("QualityReport", "has failed points"), Colour::Fault},
    VerdictWords{QT_TRANSLATE_NOOP("QualityReport", "has failed points, not complete"),
                 Colour::Fault},
    VerdictWords{QT_TRANSLATE_NOOP("QualityReport", "not staked"), Colour::Warning},
    VerdictWords{QT_TRANSLATE_NOOP("QualityReport", "not complete"), Colour::Warning},
    VerdictWords{QT_TRANSLATE_NOOP("QualityReport", "not in the design"), Colour::Warning},
    VerdictWords{QT_TRANSLATE_NOOP("QualityReport", "no result chosen"), Colour::Warning},
    VerdictWords{QT_TRANSLATE_NOOP("QualityReport", "not all judged"), Colour::Warning},
    VerdictWords{QT_TRANSLATE_NOOP("QualityReport", "in order"), Colour::Good},
};

/// \param hasDesign whether the project has one
LineVerdict verdictOf(const statistics::Figures& line, bool hasDesign)
{
    const bool isComplete = line.design.left == 0;
    if (failedOf(line) > 0)
        return isComplete ? LineVerdict::Failed : LineVerdict::FailedAndIncomplete;
    if (!isComplete)
        return line.design.left == line.design.designed ? LineVerdict::NotStaked
                                                        : LineVerdict::Incomplete;
    if (line.design.designed == 0 && hasDesign)
        return LineVerdict::Unplanned;
    if (line.all() == 0)
        return LineVerdict::NoResult;
    return line.all(statistics::Verdict::NotJudged) > 0 ? LineVerdict::NotAllJudged
                                                        : LineVerdict::InOrder;
}

/// The failure of each line that is farthest beyond its limit; null of a line without any.
std::vector<const QualityFailure*> worstOfLines(const QualityFindings& findings)
{
    std::vector<const QualityFailure*> worst(findings.ofLine.size());
    for (const QualityFailure& failure : findings.failures) {
        const auto& result = findings.resultOf(failure);
        const QualityFailure*& kept = worst[result.key(statistics::GroupKey::Line)];
        if (kept == nullptr || failure.worst.severity() > kept->worst.severity())
            kept = &failure;
    }
    return worst;
}

constexpr std::size_t kVerdictColumn = 1;
constexpr std::size_t kLeftColumn = 4;
constexpr std::size_t kNotJudgedColumn = 9;

Sheet& addSheet(Workbook& book)
{
    Sheet& sheet = book.addSheet(Texts::tr("Lines"),
                                 {{Texts::tr("Line")},
                                  {Texts::tr("Verdict")},
                                  {Texts::tr("Designed"), Form::Number},
                                  {Texts::tr("Staked"), Form::Number},
                                  {Texts::tr("Left"), Form::Number},
                                  {Texts::tr("Results"), Form::Number},
                                  {Texts::tr("Within limits"), Form::Number},
                                  {Texts::tr("Failed"), Form::Number},
                                  {Texts::tr("Failed (%)"), Form::Percent, 1},
                                  {Texts::tr("Not judged"), Form::Number},
                                  {Texts::tr("Worst test")},
                                  {Texts::tr("Worst point")},
                                  {Texts::tr("Value"), Form::Number, 3},
                                  {Texts::tr("Limit"), Form::Number, 3},
                                  {Texts::tr("Value / limit"), Form::Number, 2}},
                                 {.frozenColumns = 1});
    for (const VerdictWords& verdict : kVerdicts)
        sheet.colourText(kVerdictColumn, Texts::tr(verdict.text), verdict.colour);
    sheet.colourAbove(kLeftColumn, 0, Colour::Warning);
    sheet.colourAbove(kNotJudgedColumn, 0, Colour::Warning);
    return sheet;
}

} // namespace

bool addLinesSheet(Workbook& book, const QualityFindings& findings, ReportSteps& steps)
{
    using statistics::Verdict;
    Sheet& sheet = addSheet(book);
    const bool hasDesign = findings.sample.design.designed > 0;
    const auto worst = worstOfLines(findings);
    for (std::size_t i = 0; i < findings.ofLine.size(); ++i) {
        const statistics::Figures& line = findings.ofLine[i];
        const auto verdict = static_cast<std::size_t>(verdictOf(line, hasDesign));
        sheet.text(findings.nameOfLine(i))
            .text(Texts::tr(kVerdicts[verdict].text))
            .integer(std::int64_t(line.design.designed))
            .integer(std::int64_t(line.design.designed - line.design.left))
            .integer(std::int64_t(line.design.left))
            .integer(std::int64_t(line.all()))
            .integer(std::int64_t(line.all(Verdict::WithinLimits)))
            .integer(std::int64_t(failedOf(line)))
            .number(shareFailedOf(line))
            .integer(std::int64_t(line.all(Verdict::NotJudged)));
        if (const QualityFailure* const failure = worst[i]; failure != nullptr)
            sheet.text(qualityTestNameWithUnit(*failure->worst.test))
                .text(writtenPointNumber(findings.resultOf(*failure).point->pointNumber))
                .number(failure->worst.judged.value)
                .number(failure->worst.judged.limit)
                .number(std::fabs(failure->worst.ratio()));
        sheet.endRow();
        if (!steps.next())
            return false;
    }
    return true;
}
