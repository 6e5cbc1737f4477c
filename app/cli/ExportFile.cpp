#include "app/cli/ExportFile.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "exchange/ExportColumns.h"

namespace {

constexpr const char* kColumns = "--columns";
constexpr const char* kOnlyUnsurveyed = "--only-unsurveyed";

/// Refuses options that do not go with the kind of export, and columns that do not exist.
Outcome checkUsage(const CliArguments& arguments, bool isDesign)
{
    const QString stranger = QLatin1String(isDesign ? kColumns : kOnlyUnsurveyed);
    if (arguments.options.contains(stranger))
        return Outcome::refused(
            QStringLiteral("%1 does not go with %2").arg(stranger, arguments.places[1]));
    if (isDesign || !arguments.options.contains(QLatin1String(kColumns)))
        return Outcome::done();
    const QStringList keys = arguments.option(QLatin1String(kColumns)).split(QLatin1Char(','));
    for (const QString& key : keys) {
        if (exportCaptions({key}).isEmpty())
            return Outcome::refused(
                QStringLiteral("there is no column \"%1\"; they are named as in the database, "
                               "such as line_num,point_num,north,east")
                    .arg(key));
    }
    for (const char* needed : {"line_num", "point_num"}) {
        if (!keys.contains(QLatin1String(needed)))
            return Outcome::refused(
                QStringLiteral("the columns of a result include %1").arg(QLatin1String(needed)));
    }
    return Outcome::done();
}

/// The lines of "--lines"; all lines without it.
template <class Points>
Outcome chooseLines(const CliArguments& arguments, const Points& points, QStringList& lines)
{
    const QString named = arguments.option(QStringLiteral("--lines"));
    if (named.isEmpty()) {
        for (const auto& [number, line] : points)
            lines.append(QString::fromStdString(number));
        return Outcome::done();
    }
    lines = named.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (points.findLine(line.toStdString()) == nullptr)
            return Outcome::failed(QStringLiteral("There is no line \"%1\".").arg(line));
    }
    return Outcome::done();
}

Outcome exportDesign(const CliArguments& arguments, DataProcessDataManager& manager)
{
    QStringList lines;
    Outcome outcome = chooseLines(arguments, manager.designPoints(), lines);
    if (outcome.isDone())
        manager.exportDesignCsv(lines, arguments.places[2],
                                arguments.options.contains(QLatin1String(kOnlyUnsurveyed)),
                                &outcome);
    return outcome;
}

Outcome exportSurvey(const CliArguments& arguments, DataProcessDataManager& manager)
{
    QStringList lines;
    Outcome outcome = chooseLines(arguments, manager.surveyPoints(), lines);
    QStringList captions;
    if (arguments.options.contains(QLatin1String(kColumns)))
        captions =
            exportCaptions(arguments.option(QLatin1String(kColumns)).split(QLatin1Char(',')));
    if (outcome.isDone())
        manager.exportSurveyCsv(lines, arguments.places[2], captions, &outcome);
    return outcome;
}

} // namespace

Outcome exportFile(const CliArguments& arguments)
{
    const QString& kind = arguments.places[1];
    const bool isDesign = kind == QLatin1String("design-csv");
    if (!isDesign && kind != QLatin1String("survey-csv"))
        return Outcome::refused(
            QStringLiteral("\"%1\" is no kind of export; there are design-csv, survey-csv")
                .arg(kind));
    if (Outcome usage = checkUsage(arguments, isDesign); !usage.isDone())
        return usage;
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    return isDesign ? exportDesign(arguments, project.manager())
                    : exportSurvey(arguments, project.manager());
}
