#include "app/DemoProject.h"

#include "basalt_utilities/Dictionary.h"
#include "exchange/ShownTimes.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "model/CoordinateRecord.h"
#include "project/DataProcessDataManager.h"
#include "project/OverlayList.h"
#include "project/ProjectCreator.h"
#include "project/ProjectPlace.h"
#include "samples/DemoFiles.h"
#include "samples/DemoImage.h"
#include "samples/DemoLimits.h"
#include "samples/DemoSurvey.h"
#include "samples/ResultCompleter.h"

#include <QCoreApplication>
#include <QDir>

namespace {

constexpr std::uint64_t kSeed = 1; ///< the same survey for everyone
constexpr const char* kSystem = "32650";

Outcome writeFiles(const QString& folder)
{
    ICoordTransform& transform = get_project_coord_transform();
    QString fault = demo::useSurveySystem(transform);
    if (fault.isEmpty())
        fault = demo::writeDemoFiles(folder, demo::makeDemoSurvey(kSeed, transform), shownTimes());
    return fault.isEmpty() ? Outcome::done() : Outcome::failed(fault);
}

/// The image of the ground, which the project shows under its data.
QString imageOf(const ProjectPlace& place)
{
    return place.folder + QLatin1Char('/') + QLatin1String(demo::kImageFile);
}

Outcome writeImage(const ProjectPlace& place)
{
    const QString fault = demo::writeDemoImage(imageOf(place));
    return fault.isEmpty() ? Outcome::done() : Outcome::failed(fault);
}

Outcome createProject(const ProjectPlace& place)
{
    basalt::Dictionary project;
    ProjectCreator::describe(place, project);
    const std::string fault = fillFromEpsg(kSystem, project);
    if (!fault.empty())
        return Outcome::failed(QString::fromStdString(fault));
    project.set(CoordinateRecord::kId, std::string("EPSG:") + kSystem);
    return ProjectCreator::create(place, project);
}

void setLimits(DataProcessDataManager& manager)
{
    basalt::Dictionary parameters(manager.qualityParameters());
    for (const demo::DemoLimit& limit : demo::demoLimits())
        parameters.set(limit.key, limit.value);
    manager.setQualityParameters(parameters);
}

/// Reads the files into the project and saves it.
Outcome importFiles(const ProjectPlace& place, const QString& folder)
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    Outcome outcome = manager.openProject(place);
    if (outcome.isDone())
        manager.importDesignCsv(folder + QStringLiteral("/design.csv"), &outcome);
    if (outcome.isDone())
        manager.importSurveyCsv(folder + QStringLiteral("/survey.csv"), &outcome);
    if (outcome.isDone()) {
        setLimits(manager);
        OverlayList::write({{imageOf(place)}}, place.folder, manager.project());
        outcome = manager.saveProject(place);
    }
    manager.clear();
    return outcome;
}

Outcome make(const ProjectPlace& place)
{
    if (!QDir().mkpath(place.folder))
        return Outcome::failed(
            QCoreApplication::translate("DemoProject", "The folder \"%1\" cannot be made.")
                .arg(QDir::toNativeSeparators(place.folder)));
    const QString csv = place.folder + QStringLiteral("/csv");
    Outcome making = writeFiles(csv);
    if (making.isDone())
        making = writeImage(place);
    if (making.isDone())
        making = createProject(place);
    if (making.isDone())
        making = importFiles(place, csv);
    return making;
}

} // namespace

Outcome makeDemoProject(const ProjectPlace& place)
{
    const bool isNewFolder = !QDir(place.folder).exists();
    Outcome making = make(place);
    if (!making.isDone() && isNewFolder)
        QDir(place.folder).removeRecursively();
    return making;
}
