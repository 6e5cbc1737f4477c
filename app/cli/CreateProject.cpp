#include "app/cli/CreateProject.h"

#include "app/cli/CliCommands.h"
#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/coords/CoordCheck.h"
#include "lum_sdk/coords/CoordStoredForm.h"
#include "lum_sdk/coords/EpsgDatumShift.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/Text.h"
#include "model/CoordinateRecord.h"
#include "project/ProjectCreator.h"
#include "project/ProjectPlace.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace {

/// \returns an empty text, or why the system cannot be taken
QString setParameters(const QStringList& pairs, IDictionary& project)
{
    // The pivot of a datum shift is worked in before anything is stored.
    static const QStringList known =
        QString::fromLatin1(CoordinateRecord::kKeys).split(QLatin1Char(',')) +
        QStringList{QStringLiteral("_7px"), QStringLiteral("_7py"), QStringLiteral("_7pz")};
    for (const QString& pair : pairs) {
        const QString key = pair.section(QLatin1Char('='), 0, 0);
        const QString value = pair.section(QLatin1Char('='), 1);
        if (!known.contains(key))
            return QStringLiteral("There is no coordinate parameter \"%1\".").arg(key);
        if (value.isEmpty())
            return QStringLiteral("The coordinate parameter \"%1\" has no value.").arg(key);
        project.set(key.toStdString(), value.toStdString());
    }
    const lum::CoordParameterFault fault = lum::checkCoordParameters(project);
    if (!fault)
        lum::toStoredForm(project);
    return QString::fromStdString(fault.message);
}

/// Names the datum shift that a system of the register came with.
void tellDatumShift(const QString& code)
{
    const lum::EpsgDatumShifts shifts = lum::epsgDatumShifts(code.toStdString());
    std::string taken =
        "none in the register covers this system's area, positions are taken as WGS 84";
    if (shifts.best() != nullptr)
        taken = lum::describe(*shifts.best());
    else if (!shifts.isNeeded)
        taken = "none, the system is on WGS 84";
    else if (shifts.known.empty())
        taken = "none is in the register for this system, positions are taken as WGS 84";
    std::fprintf(stderr, "Datum shift: %s\n", taken.c_str());
}

QString chooseSystem(const CliArguments& arguments, IDictionary& project)
{
    QString code = arguments.option(QStringLiteral("--epsg"));
    if (code.startsWith(QLatin1String("EPSG:"), Qt::CaseInsensitive))
        code.remove(0, 5);
    if (!code.isEmpty()) {
        const std::string fault = fillFromEpsg(code.toStdString(), project);
        if (!fault.empty())
            return QString::fromStdString(fault);
        project.set(CoordinateRecord::kId, "EPSG:" + code.toStdString());
        tellDatumShift(code);
        return {};
    }
    const QStringList pairs = arguments.options.value(QStringLiteral("--set"));
    return pairs.isEmpty() ? QString() : setParameters(pairs, project);
}

} // namespace

CliResult createProject(const CliArguments& arguments)
{
    if (arguments.options.size() > 1)
        return CliResult::wrongUsage(QStringLiteral("--epsg and --set exclude each other"));
    const QString location = QFileInfo(arguments.places[0]).absoluteFilePath();
    const QString& name = arguments.places[1];
    QString fault = projectLocationFault(location);
    if (fault.isEmpty())
        fault = projectNameFault(name);
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    const ProjectPlace place = ProjectPlace::planned(QDir::cleanPath(location), name);
    if (QFileInfo::exists(place.file) || QFileInfo::exists(place.database()))
        return CliResult::failed(
            QStringLiteral("There is a project in \"%1\" already.").arg(place.folder));
    basalt::Dictionary project;
    ProjectCreator::describe(place, project);
    fault = chooseSystem(arguments, project);
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    if (!QDir().mkpath(place.folder))
        return CliResult::failed(
            QStringLiteral("The folder \"%1\" cannot be made.").arg(place.folder));
    fault = ProjectCreator::create(place, project);
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    std::printf("%s\n", qUtf8Printable(place.file));
    return {};
}
