#include "reports/ReportSheets.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/Numbers.h"
#include "exchange/ShownTimes.h"
#include "exchange/workbook/Workbook.h"
#include "lum_sdk/Text.h"
#include "model/CoordinateRecord.h"
#include "quality/QualityLimits.h"
#include "reports/ControlRows.h"
#include "reports/ParameterWords.h"
#include "reports/ReportInput.h"

#include <QCoreApplication>
#include <QDir>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Reports)
};

QString momentText(std::int64_t milliseconds)
{
    return lum::toQString(shownTime(milliseconds));
}

QString periodText(const ReportChoice& choice)
{
    constexpr std::int64_t kSecond = 1000;
    if (choice.fromMs && choice.untilMs)
        return Texts::tr("%1 to %2")
            .arg(momentText(*choice.fromMs), momentText(*choice.untilMs - kSecond));
    if (choice.fromMs)
        return Texts::tr("from %1").arg(momentText(*choice.fromMs));
    if (choice.untilMs)
        return Texts::tr("until %1").arg(momentText(*choice.untilMs - kSecond));
    return Texts::tr("all results");
}

void writeProject(Page& page, const ReportInput& input)
{
    page.addValue(Texts::tr("Project"), input.projectName);
    page.addValue(Texts::tr("File"), QDir::toNativeSeparators(input.projectFile));
    page.addValue(Texts::tr("Period"), periodText(input.choice));
    page.addValue(Texts::tr("Surveyors"), input.choice.surveyors.isEmpty()
                                              ? Texts::tr("all")
                                              : input.choice.surveyors.join(QLatin1String(", ")));
    page.addValue(Texts::tr("Times"), Texts::tr("in the zone %1").arg(shownZone()));
    page.addValue(Texts::tr("Program"), input.program);
}

void writeCoordSystem(Page& page, const IDictionary& parameters)
{
    page.addChapter(Texts::tr("Coordinate system"));
    const std::vector<ParameterGroup> groups = coordSystemWords(parameters);
    const QString name =
        lum::toQString(parameters.text(CoordinateRecord::kId, CoordinateRecord::kUndefinedId));
    if (groups.empty() || name != QLatin1String(CoordinateRecord::kUndefinedId))
        page.addValue(Texts::tr("Name"), groups.empty() ? Texts::tr("none") : name);
    for (const ParameterGroup& group : groups)
        page.addValue(group.caption, group.text);
    page.addValue(Texts::tr("Heights"), heightKind(parameters));
}

/// The value of a limit as a number, when it is one.
void addLimitValue(Sheet& sheet, const QualityParameter& parameter, std::string_view value)
{
    if (parameter.largest > 0)
        sheet.number(basalt::parseNumber(value));
    else
        sheet.text(value);
}

} // namespace

Page& addSummary(Workbook& book)
{
    return book.addPage(Texts::tr("Summary"));
}

void writeSummaryHead(Page& page, const QString& title, const ReportInput& input,
                      const JudgedPoints& points)
{
    page.addTitle(title);
    writeProject(page, input);
    writeCoordSystem(page, input.coordParameters);
    page.addChapter(Texts::tr("Limits"));
    for (const ParameterGroup& group : limitWords(input.qualityParameters))
        page.addValue(group.caption, group.text);
    page.addValue(Texts::tr("Signs"),
                  Texts::tr("Differences are measured minus design: positive to the north, to the "
                            "east and upwards."));
    page.addValue(Texts::tr("Points judged"), double(points.judged));
    page.addValue(Texts::tr("Points not judged"), double(points.notJudged));
    if (points.notJudged > 0)
        page.addValue(Texts::tr("Why not judged"), points.reason);
}

void addLimitsSheet(Workbook& book, const ReportInput& input,
                    const std::vector<FigureDefinition>& definitions)
{
    using Form = SheetColumn::Form;
    Sheet& sheet = book.addSheet(Texts::tr("Limits"),
                                 {{Texts::tr("Limit or figure")},
                                  {Texts::tr("Key")},
                                  {Texts::tr("Value"), Form::Number, CellFormats::kAsNeeded},
                                  {Texts::tr("Unit"), Form::Code},
                                  {Texts::tr("Meaning"), Form::Text, 0, 95}});
    const std::vector<ControlRow> rows = readControlRows("QCParam");
    for (const QualityParameter& parameter : kQualityParameters) {
        const ControlRow* const row = findControlRow(rows, parameter.key);
        sheet.text(row != nullptr ? row->caption : QString::fromLatin1(parameter.key))
            .text(parameter.key);
        addLimitValue(sheet, parameter, qualityParameter(input.qualityParameters, parameter.key));
        sheet.text(row != nullptr ? row->unit : QString())
            .text(qualityParameterNote(input.qualityParameters, parameter.key))
            .endRow();
    }
    for (const FigureDefinition& figure : definitions)
        sheet.text(figure.figure).blank().blank().blank().text(figure.definition).endRow();
}
