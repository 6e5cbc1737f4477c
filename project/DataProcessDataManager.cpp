#include "project/DataProcessDataManager.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/KeyList.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/DesignCsvWriter.h"
#include "exchange/ExportColumns.h"
#include "exchange/ImportSummary.h"
#include "exchange/SeaHeights.h"
#include "exchange/SurveyCsvReader.h"
#include "exchange/SurveyCsvWriter.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/IHost.h"
#include "model/CodeTables.h"
#include "model/CoordinateRecord.h"
#include "model/SurveyColumns.h"
#include "project/ParameterFiles.h"
#include "project/ProjectCreator.h"
#include "project/ProjectFile.h"
#include "project/ProjectLoader.h"
#include "project/ProjectPlace.h"
#include "project/ProjectSaver.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "quality/QualityCheck.h"
#include "quality/QualityDescription.h"
#include "quality/QualityLimits.h"

#include <QCoreApplication>

#include <cpl_conv.h>
#include <gdal.h>
#include <ogr_api.h>

#include <cstring>

namespace {
DataProcessDataManager* managerInUse = nullptr;

void setUpRasterLibrary()
{
    CPLSetConfigOption("GDAL_FILENAME_IS_UTF8", "NO"); // names are handed over as 8-bit text
    OGRRegisterAll();
    GDALAllRegister();
}

/// Puts another sentence under what the user is told.
void addNotice(QString& message, const QString& notice)
{
    if (!message.isEmpty() && !notice.isEmpty())
        message += QLatin1Char('\n');
    message += notice;
}

int exported(const Outcome& outcome)
{
    if (!outcome.isDone())
        basalt::logError(outcome.detail());
    return outcome.toFlag();
}

int imported(const Outcome& outcome, ImportSummary& own, ImportSummary* asked)
{
    if (outcome.isDone())
        basalt::logInfo(own.toText().toStdString());
    else
        basalt::logError(outcome.detail());
    if (asked != nullptr)
        *asked = std::move(own);
    return outcome.toFlag();
}
} // namespace

DataProcessDataManager::DataProcessDataManager(IHost* host)
    : m_host(*host), m_subscription(*this, events::kDbQueryProcess, host->eventManager()),
      m_surveyCaptions(::surveyCaptions()),
      m_exportCaptions(::exportCaptions(exportColumns(get_system_ini_parameter().dictionary())))
{
    if (managerInUse == nullptr)
        managerInUse = this;
    setUpRasterLibrary();
}

DataProcessDataManager::~DataProcessDataManager()
{
    if (managerInUse == this)
        managerInUse = nullptr;
}

DataProcessDataManager* DataProcessDataManager::instance()
{
    return managerInUse;
}

StoreResult DataProcessDataManager::openProject(const ProjectPlace& place, ProjectAccess access)
{
    StoreResult lock = access == ProjectAccess::Change ? m_lock.take(place) : StoreResult{true, {}};
    if (!lock.isDone)
        return lock;
    StoreResult result = read(place);
    if (result.isDone)
        addNotice(result.message, lock.message);
    else
        clear(); // what was read of a project that is not open
    m_isSaveOwed = false;
    return result;
}

StoreResult DataProcessDataManager::read(const ProjectPlace& place)
{
    basalt::Dictionary quality;
    basalt::Dictionary design;
    if (const QString fault = ParameterFiles::read(place.folder, quality, design); !fault.isEmpty())
        return {false, fault};
    basalt::Dictionary project;
    const bool isProjectFileOurs = ProjectFile::read(place.file, project);
    basalt::Dictionary coordSystem;
    StoreResult result = readDatabase(place.database(), coordSystem);
    if (!result.isDone)
        return result;
    if (coordSystem.size() == 0) { // until the first save it stands in the project file alone
        dictionary_copy(project, coordSystem, CoordinateRecord::kKeys);
        dictionary_copy(project, coordSystem, CoordinateRecord::kId);
    }
    setCoordSystem(coordSystem);
    dictionary_copy(quality, m_qualityParameters);
    dictionary_copy(design, m_designParameters);
    m_project = std::move(project);
    m_projectFile = isProjectFileOurs ? place.file : QString();
    if (!isProjectFileOurs)
        addNotice(result.message,
                  QCoreApplication::translate("ProjectStore",
                                              "The project file \"%1\" cannot be read: what it "
                                              "says about the project is neither shown nor saved.")
                      .arg(place.file));
    return result;
}

StoreResult DataProcessDataManager::saveProject(const ProjectPlace& place)
{
    m_isSaveOwed = true;
    if (StoreResult lock = m_lock.ensure(place); !lock.isDone)
        return lock;
    if (const QString fault = ProjectCreator::replaceDatabase(place); !fault.isEmpty())
        return {false, fault};
    StoreResult result = save(place.database());
    if (!result.isDone)
        return result;
    if (const QString fault =
            ParameterFiles::write(place.folder, m_qualityParameters, m_designParameters);
        !fault.isEmpty())
        return {false, fault};
    if (!m_projectFile.isEmpty() && !ProjectFile::write(m_projectFile, m_project))
        return {false, QCoreApplication::translate("ProjectStore",
                                                   "The project file \"%1\" cannot be written.")
                           .arg(m_projectFile)};
    m_isSaveOwed = false;
    return result;
}

void DataProcessDataManager::clear()
{
    m_design.clear();
    m_survey.clear();
    m_project.clear();
    m_projectFile.clear();
    m_qualityParameters.clear();
    m_designParameters.clear();
    m_database.close();
    m_lock.release();
    m_isSaveOwed = false;
}

StoreResult DataProcessDataManager::load(const QString& path)
{
    basalt::Dictionary coordSystem;
    StoreResult result = readDatabase(path, coordSystem);
    if (coordSystem.size() != 0)
        setCoordSystem(coordSystem);
    return result;
}

StoreResult DataProcessDataManager::readDatabase(const QString& path, IDictionary& coordSystem)
{
    ProgressReporter progress(&m_host.eventManager());
    return ProjectLoader(m_database, progress)
        .load(path.toStdString(), m_design, m_survey, coordSystem);
}

void DataProcessDataManager::setCoordSystem(const IDictionary& parameters)
{
    get_project_coord_transform().initialise(parameters, parameters);
    recomputeSeaHeights();
}

StoreResult DataProcessDataManager::save(const QString& path)
{
    ProgressReporter progress(&m_host.eventManager());
    return ProjectSaver(m_database, progress)
        .save(path.toStdString(), m_design, m_survey, get_project_coord_transform().parameters());
}

void DataProcessDataManager::recomputeSeaHeights()
{
    ICoordTransform& transform = get_project_coord_transform();
    ::recomputeSeaHeights(&transform, transform.parameters(), [this](const auto& visit) {
        for (auto& [number, line] : m_survey) {
            for (SurveyPoint& point : line)
                visit({point.latitude, point.longitude, point.altitude, point.elevation,
                       &point.seaHeight});
        }
    });
}

int DataProcessDataManager::checkQuality()
{
    ProgressReporter progress(&m_host.eventManager());
    ::checkQuality(m_survey, m_qualityParameters, progress);
    return 1;
}

std::vector<QualityRow> DataProcessDataManager::describeQuality(const SurveyPoint& point) const
{
    std::vector<QualityRow> rows;
    ::describeQuality(point, QualityLimits::from(m_qualityParameters), rows);
    return rows;
}

std::vector<QualityRow> DataProcessDataManager::describeQuality() const
{
    const QualityLimits limits = QualityLimits::from(m_qualityParameters);
    std::vector<QualityRow> rows;
    for (const auto& [number, line] : m_survey) {
        for (const SurveyPoint& point : line)
            ::describeQuality(point, limits, rows);
    }
    return rows;
}

int DataProcessDataManager::exportDesignCsv(const QStringList& lines, const QString& path,
                                            bool onlyUnsurveyed)
{
    ProgressReporter progress(&m_host.eventManager());
    return exported(writeDesignCsv(path, m_design, lines, onlyUnsurveyed, progress));
}

int DataProcessDataManager::importDesignCsv(const QString& path, ImportSummary* summary)
{
    ProgressReporter progress(&m_host.eventManager());
    ImportSummary own;
    return imported(readDesignCsv(path, m_design, progress, own), own, summary);
}

int DataProcessDataManager::exportSurveyCsv(const QStringList& lines, const QString& path)
{
    ProgressReporter progress(&m_host.eventManager());
    if (m_exportCaptions.isEmpty())
        m_exportCaptions = m_surveyCaptions;
    const int format = get_system_status_dictionary().integer(status::kDegreeFormat);
    return exported(writeSurveyCsv(path, m_survey, lines, {m_exportCaptions, format}, progress));
}

int DataProcessDataManager::importSurveyCsv(const QString& path, ImportSummary* summary)
{
    ProgressReporter progress(&m_host.eventManager());
    ImportSummary own;
    return imported(readSurveyCsv(path, m_survey, progress, own), own, summary);
}

QString DataProcessDataManager::solutionTypeText(int code)
{
    return ::solutionTypeText(code);
}

int DataProcessDataManager::solutionTypeCode(const QString& text)
{
    return ::solutionTypeCode(text);
}

QString DataProcessDataManager::obstacleText(int code)
{
    return ::obstacleText(code);
}

void DataProcessDataManager::handleEvent(const char* eventName, const char* payload,
                                         int /*reserved*/)
{
    if (std::strcmp(eventName, events::kDbQueryProcess) == 0)
        reportQuery(payload);
}

void DataProcessDataManager::reportQuery(const char* payload)
{
    basalt::Dictionary values;
    if (payload != nullptr)
        csa_to_dictionary(values, payload);
    const double count = values.integer("count", 1);
    const double total = values.integer("total", 1);
    const double percent = total > 0 ? count * 100 / total : 100;
    const QString caption =
        QCoreApplication::translate("DataProcessDataManager", "Loading Database");
    m_host.eventManager().publish(events::kProgress,
                                  payload::progress(caption.toStdString(), percent).c_str(), 0);
}
