#include "app/cli/ExportFile.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "exchange/ExportColumns.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr const char* kColumns = "--columns";
constexpr const char* kOnlyUnsurveyed = "--only-unsurveyed";

using DesignExport = int (DataProcessDataManager::*)(const QStringList& lines, const QString& path,
                                                     bool onlyUnsurveyed, Outcome* outcome);

/// A kind of export: of the design by an operation of the manager, otherwise of results.
struct ExportKind
{
    const char* name = nullptr;
    DesignExport design = nullptr;
    bool hasColumns = false;
};

constexpr std::array kKinds{
    ExportKind{"design-csv", &DataProcessDataManager::exportDesignCsv},
    ExportKind{"design-db", &DataProcessDataManager::exportDesignDatabase},
    ExportKind{"design-kml", &DataProcessDataManager::exportDesignKml},
    ExportKind{"survey-csv", nullptr, true},
    ExportKind{"survey-kml", nullptr},
};

/// Null when there is none of that name.
const ExportKind* findKind(const QString& name)
{
    const auto* const found =
        std::find_if(kKinds.begin(), kKinds.end(),
                     [&](const ExportKind& kind) { return name == QLatin1String(kind.name); });
    return found == kKinds.end() ? nullptr : found;
}

QString kindNames()
{
    QStringList names;
    for (const ExportKind& kind : kKinds)
        names << QLatin1String(kind.name);
    return names.join(QLatin1String(", "));
}

/// Refuses options that do not go with the kind of export, and columns that do not exist.
Outcome checkUsage(const CliArguments& arguments, const ExportKind& kind)
{
    const std::pair<const char*, bool> options[] = {{kColumns, kind.hasColumns},
                                                    {kOnlyUnsurveyed, kind.design != nullptr}};
    for (const auto& [option, isUsual] : options) {
        if (!isUsual && arguments.options.contains(QLatin1String(option)))
            return Outcome::refused(QStringLiteral("%1 does not go with %2")
                                        .arg(QLatin1String(option), QLatin1String(kind.name)));
    }
    if (!arguments.options.contains(QLatin1String(kColumns)))
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

Outcome exportDesign(const CliArguments& arguments, DesignExport write,
                     DataProcessDataManager& manager)
{
    QStringList lines;
    Outcome outcome = chooseLines(arguments, manager.designPoints(), lines);
    if (outcome.isDone())
        (manager.*write)(lines, arguments.places[2],
                         arguments.options.contains(QLatin1String(kOnlyUnsurveyed)), &outcome);
    return outcome;
}

Outcome exportSurvey(const CliArguments& arguments, bool isCsv, DataProcessDataManager& manager)
{
    QStringList lines;
    Outcome outcome = chooseLines(arguments, manager.surveyPoints(), lines);
    if (!outcome.isDone())
        return outcome;
    QStringList captions;
    if (arguments.options.contains(QLatin1String(kColumns)))
        captions =
            exportCaptions(arguments.option(QLatin1String(kColumns)).split(QLatin1Char(',')));
    if (isCsv)
        manager.exportSurveyCsv(lines, arguments.places[2], captions, &outcome);
    else
        manager.exportSurveyKml(lines, arguments.places[2], &outcome);
    return outcome;
}

} // namespace

Outcome exportFile(const CliArguments& arguments)
{
    const QString& name = arguments.places[1];
    const ExportKind* const kind = findKind(name);
    if (kind == nullptr)
        return Outcome::refused(
            QStringLiteral("\"%1\" is no kind of export; there are %2").arg(name, kindNames()));
    if (Outcome usage = checkUsage(arguments, *kind); !usage.isDone())
        return usage;
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    Outcome outcome = kind->design != nullptr
                          ? exportDesign(arguments, kind->design, project.manager())
                          : exportSurvey(arguments, kind->hasColumns, project.manager());
    if (outcome.isDone() && !outcome.text().isEmpty())
        std::fprintf(stderr, "%s\n", qUtf8Printable(outcome.text()));
    return outcome;
}
