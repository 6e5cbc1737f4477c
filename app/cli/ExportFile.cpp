#include "app/cli/ExportFile.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "exchange/DesignCsvWriter.h"
#include "exchange/ExportColumns.h"
#include "exchange/SurveyCsvWriter.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"

namespace {

constexpr const char* kColumns = "--columns";
constexpr const char* kOnlyUnsurveyed = "--only-unsurveyed";

/// What does not go together; empty when all is well.
QString usageFault(const CliArguments& arguments, bool isDesign)
{
    const QString stranger = QLatin1String(isDesign ? kColumns : kOnlyUnsurveyed);
    if (arguments.options.contains(stranger))
        return QStringLiteral("%1 does not go with %2").arg(stranger, arguments.places[1]);
    if (isDesign || !arguments.options.contains(QLatin1String(kColumns)))
        return {};
    const QStringList keys = arguments.option(QLatin1String(kColumns)).split(QLatin1Char(','));
    for (const QString& key : keys) {
        if (exportCaptions({key}).isEmpty())
            return QStringLiteral("there is no column \"%1\"; they are named as in the database, "
                                  "such as line_num,point_num,north,east")
                .arg(key);
    }
    for (const char* needed : {"line_num", "point_num"}) {
        if (!keys.contains(QLatin1String(needed)))
            return QStringLiteral("the columns of a result include %1").arg(QLatin1String(needed));
    }
    return {};
}

/// The lines that the user names; all of them without "--lines".
/// \returns an empty text, or which one is not there
template <class Points>
QString chooseLines(const CliArguments& arguments, const Points& points, QStringList& lines)
{
    const QString named = arguments.option(QStringLiteral("--lines"));
    if (named.isEmpty()) {
        for (const auto& [number, line] : points)
            lines.append(QString::fromStdString(number));
        return {};
    }
    lines = named.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (points.findLine(line.toStdString()) == nullptr)
            return QStringLiteral("There is no line \"%1\".").arg(line);
    }
    return {};
}

QString exportDesign(const CliArguments& arguments, CliProject& project)
{
    const DesignPoints& points = project.manager().designPoints();
    QStringList lines;
    QString fault = chooseLines(arguments, points, lines);
    if (!fault.isEmpty())
        return fault;
    ProgressReporter progress(&project.events());
    const bool onlyUnsurveyed = arguments.options.contains(QLatin1String(kOnlyUnsurveyed));
    return writeDesignCsv(arguments.places[2], points, lines, onlyUnsurveyed, progress).text();
}

QString exportSurvey(const CliArguments& arguments, CliProject& project)
{
    DataProcessDataManager& manager = project.manager();
    QStringList lines;
    QString fault = chooseLines(arguments, manager.surveyPoints(), lines);
    if (!fault.isEmpty())
        return fault;
    QStringList captions = manager.exportCaptions();
    if (arguments.options.contains(QLatin1String(kColumns)))
        captions =
            exportCaptions(arguments.option(QLatin1String(kColumns)).split(QLatin1Char(',')));
    const SurveyCsvChoice choice{captions,
                                 get_system_status_dictionary().integer(status::kDegreeFormat)};
    ProgressReporter progress(&project.events());
    return writeSurveyCsv(arguments.places[2], manager.surveyPoints(), lines, choice, progress)
        .text();
}

} // namespace

CliResult exportFile(const CliArguments& arguments)
{
    const QString& kind = arguments.places[1];
    const bool isDesign = kind == QLatin1String("design-csv");
    if (!isDesign && kind != QLatin1String("survey-csv"))
        return CliResult::wrongUsage(
            QStringLiteral("\"%1\" is no kind of export; there are design-csv, survey-csv")
                .arg(kind));
    if (const QString wrong = usageFault(arguments, isDesign); !wrong.isEmpty())
        return CliResult::wrongUsage(wrong);
    CliProject project;
    QString fault = project.open(arguments.places[0], ProjectAccess::Look);
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    fault = isDesign ? exportDesign(arguments, project) : exportSurvey(arguments, project);
    return fault.isEmpty() ? CliResult() : CliResult::failed(fault);
}
