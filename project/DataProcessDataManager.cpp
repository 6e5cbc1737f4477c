#include "project/DataProcessDataManager.h"

#include "basalt_utilities/FatalReport.h"
#include "basalt_utilities/ILogger.h"
#include "exchange/ExportColumns.h"
#include "exchange/SeaHeights.h"
#include "exchange/ShownTimes.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/IHost.h"
#include "model/CodeTables.h"
#include "model/CoordinateRecord.h"
#include "model/SurveyColumns.h"
#include "project/history/HistoryWriter.h"
#include "project/LoggedOutcome.h"
#include "project/OverlayList.h"
#include "project/ParameterFiles.h"
#include "project/ProjectCreator.h"
#include "project/ProjectFile.h"
#include "project/ProjectLoader.h"
#include "project/ProjectSaver.h"
#include "protocol/Events.h"
#include "quality/CheckKinds.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/QualityDescription.h"
#include "quality/QualityLimits.h"
#include "quality/Verdicts.h"

#include <QCoreApplication>
#include <QFile>

#include <cpl_conv.h>
#include <gdal.h>
#include <ogr_api.h>

#include <array>
#include <cstring>

namespace {
DataProcessDataManager* managerInUse = nullptr;

void setUpRasterLibrary()
{
    CPLSetConfigOption("GDAL_FILENAME_IS_UTF8", "NO"); // names are handed over as 8-bit text
    OGRRegisterAll();
    GDALAllRegister();
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

DataProcessDataManager& DataProcessDataManager::instance()
{
    if (managerInUse == nullptr)
        fatal_report("There is no data manager.");
    return *managerInUse;
}

bool DataProcessDataManager::hasInstance()
{
    return managerInUse != nullptr;
}

Outcome DataProcessDataManager::openProject(const ProjectPlace& place, ProjectAccess access)
{
    if (const QString fault = projectSuffixFault(place.file); !fault.isEmpty())
        return logged(Outcome::failed(fault));
    const Outcome locking = access == ProjectAccess::Change ? m_lock.take(place) : Outcome::done();
    if (!locking.isDone())
        return logged(locking);
    Outcome reading = read(place);
    if (reading.isDone())
        reading.add(locking.text());
    else
        clear(); // what was read before the failure
    m_isSaveOwed = false;
    m_isElseChanged = false;
    m_unsaved.clear();
    return logged(reading);
}

Outcome DataProcessDataManager::read(const ProjectPlace& place)
{
    basalt::Dictionary quality;
    basalt::Dictionary design;
    if (Outcome reading = ParameterFiles::read(place.folder, quality, design); !reading.isDone())
        return reading;
    basalt::Dictionary project;
    const Outcome projectFile = ProjectFile::read(place.file, project);
    basalt::Dictionary coordSystem;
    Outcome reading = readDatabase(place.database(), coordSystem);
    if (!reading.isDone())
        return reading;
    if (coordSystem.size() == 0) // before the first save only the project file has it
        CoordinateRecord::copy(project, coordSystem);
    applyCoordSystem(coordSystem);
    dictionary_copy(quality, m_qualityParameters);
    dictionary_copy(design, m_designParameters);
    m_project = std::move(project);
    m_projectFile = projectFile.isDone() ? place.file : QString();
    m_projectFileFault = projectFile.text();
    m_place = place;
    reading.add(m_projectFileFault);
    reading.add(history().notice());
    return reading;
}

Outcome DataProcessDataManager::saveProject(const ProjectPlace& place)
{
    const Outcome writing = write(place);
    m_isSaveOwed = !writing.isDone();
    m_isElseChanged = m_isSaveOwed;
    m_host.eventManager().publish(events::kProjectModified, nullptr, 0);
    return logged(writing);
}

void DataProcessDataManager::markChanged()
{
    const bool wasChanged = isChanged();
    m_isElseChanged = true;
    tellModified(wasChanged);
}

void DataProcessDataManager::tellModified(bool wasChanged)
{
    if (isChanged() != wasChanged)
        m_host.eventManager().publish(events::kProjectModified, nullptr, 0);
}

Outcome DataProcessDataManager::write(const ProjectPlace& place)
{
    Outcome writing = m_lock.ensure(place);
    if (writing.isDone())
        writing = ProjectCreator::replaceDatabase(place);
    if (writing.isDone())
        writing = writeDatabase(m_database, place.database(), m_unsaved);
    const QString notice = writing.isDone() ? writing.text() : QString();
    if (writing.isDone()) {
        if (m_unsaved.holdChanges())
            m_unsaved.clear(); // the history has them, also when one of the next files fails
        writing = ParameterFiles::write(place.folder, m_qualityParameters, m_designParameters);
    }
    if (writing.isDone() && !m_projectFile.isEmpty())
        writing = ProjectFile::write(m_projectFile, m_project);
    if (writing.isDone())
        ParameterFiles::writeTemplate(m_designParameters);
    writing.add(notice);
    return writing;
}

Outcome DataProcessDataManager::saveCopy(const ProjectPlace& copy)
{
    basalt::Dictionary project;
    ProjectCreator::describe(copy, project);
    const basalt::Dictionary present(project);
    dictionary_copy(m_project, project);
    dictionary_copy(present, project, ProjectFile::kPath);
    CoordinateRecord::copy(present, project);
    OverlayList::moveTo(copy.folder, m_place.folder, project);
    return logged(ProjectCreator::create(copy, project, [&] { return fillCopy(copy); }));
}

Outcome DataProcessDataManager::fillCopy(const ProjectPlace& copy)
{
    DBAdapter database;
    const QString path = copy.database();
    // What other programs have added to the database comes along while that can be read.
    bool isTaken = m_database.backup(path.toStdString().c_str());
    Outcome writing = writeDatabase(database, path, m_unsaved);
    if (!writing.isDone() && isTaken) { // it may be damaged
        isTaken = false;
        database.close();
        QFile::remove(path);
        writing = ProjectCreator::replaceDatabase(copy);
        if (writing.isDone())
            writing = writeDatabase(database, path, m_unsaved);
    }
    if (writing.isDone() && !isTaken)
        basalt::logWarning("The copy \"" + path.toStdString() +
                           "\" has no tables that other programs added to the project.");
    const QString notice = writing.isDone() ? writing.text() : QString();
    if (writing.isDone())
        writing = ParameterFiles::write(copy.folder, m_qualityParameters, m_designParameters);
    writing.add(notice);
    return writing;
}

void DataProcessDataManager::clear()
{
    m_design.clear();
    m_survey.clear();
    m_acceptances.clear();
    m_project.clear();
    m_projectFile.clear();
    m_projectFileFault.clear();
    m_place = {};
    m_seaHeightNotice.clear();
    m_qualityParameters.clear();
    m_designParameters.clear();
    m_database.close();
    m_lock.release();
    m_isSaveOwed = false;
    m_isElseChanged = false;
    m_unsaved.clear();
}

int DataProcessDataManager::load(const QString& path, Outcome* outcome)
{
    basalt::Dictionary coordSystem;
    const Outcome reading = readDatabase(path, coordSystem);
    if (coordSystem.size() != 0)
        applyCoordSystem(coordSystem);
    if (reading.isDone())
        markChanged();
    return answered(reading, outcome);
}

int DataProcessDataManager::save(const QString& path, Outcome* outcome)
{
    return answered(writeDatabase(m_database, path, {}), outcome);
}

Outcome DataProcessDataManager::readDatabase(const QString& path, IDictionary& coordSystem)
{
    ProgressReporter progress(&m_host.eventManager());
    return ProjectLoader(m_database, progress)
        .load(path.toStdString(), m_design, m_survey, coordSystem, &m_acceptances);
}

Outcome DataProcessDataManager::writeDatabase(IDBAdapter& database, const QString& path,
                                              const UnsavedEdits& edits)
{
    HistoryWriter history(edits, editedData(), HistoryAuthor::current());
    ProgressReporter progress(&m_host.eventManager());
    return ProjectSaver(database, progress)
        .save(path.toStdString(), m_design, m_survey, get_project_coord_transform().parameters(),
              {&m_acceptances, &history});
}

void DataProcessDataManager::applyCoordSystem(const IDictionary& parameters)
{
    get_project_coord_transform().initialise(parameters, parameters);
    CoordinateRecord::copy(get_project_coord_transform().parameters(), m_project);
    recomputeSeaHeights();
}

void DataProcessDataManager::recomputeSeaHeights()
{
    ICoordTransform& transform = get_project_coord_transform();
    const auto walk = [this](const auto& visit) {
        for (auto& [number, line] : m_survey) {
            for (SurveyPoint& point : line)
                visit({point.latitude, point.longitude, point.altitude, point.elevation,
                       &point.seaHeight});
        }
    };
    m_seaHeightNotice = ::recomputeSeaHeights(&transform, transform.parameters(), walk).toText();
    if (!m_seaHeightNotice.isEmpty())
        basalt::logWarning(m_seaHeightNotice.toStdString());
}

CheckedData DataProcessDataManager::checkedData()
{
    const IDictionary& coordSystem = get_project_coord_transform().parameters();
    return {m_design, m_survey, m_qualityParameters, lum::lengthUnitOf(coordSystem).metres};
}

void DataProcessDataManager::run(std::span<const CheckKind* const> checks)
{
    ProgressReporter progress(&m_host.eventManager());
    const Verdicts before = verdictsOf(m_design, m_survey);
    for (const CheckKind* const check : checks)
        check->run(checkedData(), progress);
    if (verdictsOf(m_design, m_survey) != before)
        markChanged();
}

void DataProcessDataManager::run(const CheckKind& check)
{
    if (check.run != nullptr)
        run(std::array{&check});
}

ProblemList DataProcessDataManager::findProblems(std::span<const ProblemKind* const> kinds)
{
    // The quality check first, since it clears the digit of the resurveys.
    run(std::array{&kQualityCheck, &kEmptyPointCheck, &kResurveyCheck});
    const CheckedData data = checkedData();
    ProgressReporter progress(&m_host.eventManager());
    ProblemList problems =
        ::findProblems({data.design, data.survey, data.parameters, data.planeUnitM, shownTimes()},
                       progress, kinds);
    markAccepted(problems);
    return problems;
}

void DataProcessDataManager::markAccepted(ProblemList& problems) const
{
    ::markAccepted(problems, m_acceptances, m_design, m_survey);
}

CheckResult DataProcessDataManager::resultOf(const CheckKind& check)
{
    return check.result(checkedData());
}

int DataProcessDataManager::checkQuality()
{
    run(kQualityCheck);
    return 1;
}

int DataProcessDataManager::checkEmptyPoints()
{
    run(kEmptyPointCheck);
    return 1;
}

int DataProcessDataManager::checkResurveys()
{
    run(kResurveyCheck);
    return 1;
}

QualityLimits DataProcessDataManager::qualityLimits() const
{
    QualityLimits limits = QualityLimits::from(m_qualityParameters);
    limits.planeUnitM = lum::lengthUnitOf(get_project_coord_transform().parameters()).metres;
    return limits;
}

std::vector<QualityRow> DataProcessDataManager::describeQuality(const SurveyPoint& point) const
{
    std::vector<QualityRow> rows;
    ::describeQuality(point, qualityLimits(), rows);
    return rows;
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
    payload::read(payload, values);
    const double count = values.integer("count", 1);
    const double total = values.integer("total", 1);
    const double percent = total > 0 ? count * 100 / total : 100;
    const QString caption =
        QCoreApplication::translate("DataProcessDataManager", "Loading Database");
    m_host.eventManager().publish(events::kProgress,
                                  payload::progress(caption.toStdString(), percent).c_str(), 0);
}
