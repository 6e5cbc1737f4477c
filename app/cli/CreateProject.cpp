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

Outcome setParameters(const QStringList& pairs, IDictionary& project)
{
    // The pivot of a datum shift (_7p...) may be given, too: toStoredForm works it into the shift.
    static const QStringList known =
        QString::fromLatin1(CoordinateRecord::kKeys).split(QLatin1Char(',')) +
        QStringList{QStringLiteral("_7px"), QStringLiteral("_7py"), QStringLiteral("_7pz"),
                    QString::fromLatin1(CoordinateRecord::kUnit)};
    for (const QString& pair : pairs) {
        const QString key = pair.section(QLatin1Char('='), 0, 0);
        const QString value = pair.section(QLatin1Char('='), 1);
        if (!known.contains(key))
            return Outcome::failed(
                QStringLiteral("There is no coordinate parameter \"%1\".").arg(key));
        if (value.isEmpty())
            return Outcome::failed(
                QStringLiteral("The coordinate parameter \"%1\" has no value.").arg(key));
        project.set(key.toStdString(), value.toStdString());
    }
    if (const lum::CoordParameterFault fault = lum::checkCoordParameters(project))
        return Outcome::failed(QString::fromStdString(fault.message));
    lum::toStoredForm(project);
    return Outcome::done();
}

/// Prints which datum shift was taken for a system of the register.
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

/// Takes the coordinate system of "--epsg" or "--set" into the project; without either it keeps the
/// one that it has.
Outcome chooseSystem(const CliArguments& arguments, IDictionary& project)
{
    QString code = arguments.option(QStringLiteral("--epsg"));
    if (code.startsWith(QLatin1String("EPSG:"), Qt::CaseInsensitive))
        code.remove(0, 5);
    if (!code.isEmpty()) {
        const std::string fault = fillFromEpsg(code.toStdString(), project);
        if (!fault.empty())
            return Outcome::failed(QString::fromStdString(fault));
        project.set(CoordinateRecord::kId, "EPSG:" + code.toStdString());
        tellDatumShift(code);
        return Outcome::done();
    }
    const QStringList pairs = arguments.options.value(QStringLiteral("--set"));
    return pairs.isEmpty() ? Outcome::done() : setParameters(pairs, project);
}

/// The folder, or the nearest one above it that is there.
QString existingFolder(QString folder)
{
    while (!QFileInfo::exists(folder) && folder != QLatin1String("/"))
        folder = QFileInfo(folder).path();
    return folder;
}

/// Makes the project, with the folders above it that are missing; after a failure they go again.
Outcome make(const ProjectPlace& place, const IDictionary& project)
{
    const QString above = existingFolder(place.folder);
    Outcome making =
        QDir().mkpath(place.folder)
            ? ProjectCreator::create(place, project)
            : Outcome::failed(
                  QStringLiteral("The folder \"%1\" cannot be made.").arg(place.folder));
    if (!making.isDone()) {
        for (QString made = place.folder; made != above; made = QFileInfo(made).path())
            QDir().rmdir(made); // succeeds only when it is empty
    }
    return making;
}

/// Why a project cannot have the name, with one that it can have.
QString nameFault(const QString& name)
{
    const QString fault = projectNameFault(name);
    const QString proposal = fault.isEmpty() ? QString() : projectNameProposal(name);
    return proposal.isEmpty() ? fault : fault + QStringLiteral(" Try \"%1\".").arg(proposal);
}

} // namespace

Outcome createProject(const CliArguments& arguments)
{
    if (arguments.options.size() > 1)
        return Outcome::refused(QStringLiteral("--epsg and --set exclude each other"));
    const QString location = QDir::cleanPath(QFileInfo(arguments.places[0]).absoluteFilePath());
    const QString& name = arguments.places[1];
    for (const QString& fault : {projectLocationFault(existingFolder(location)), nameFault(name)}) {
        if (!fault.isEmpty())
            return Outcome::failed(fault);
    }
    const ProjectPlace place = ProjectPlace::planned(location, name);
    if (QFileInfo::exists(place.file) || QFileInfo::exists(place.database()))
        return Outcome::failed(
            QStringLiteral("There is a project in \"%1\" already.").arg(place.folder));
    basalt::Dictionary project;
    ProjectCreator::describe(place, project);
    Outcome making = chooseSystem(arguments, project);
    if (making.isDone())
        making = make(place, project);
    if (making.isDone())
        std::printf("%s\n", qUtf8Printable(place.file));
    return making;
}
