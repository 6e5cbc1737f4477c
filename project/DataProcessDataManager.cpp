#include "project/DataProcessDataManager.h"

#include "basalt_utilities/FatalReport.h"
#include "basalt_utilities/ILogger.h"
#include "design/DesignGenerator.h"
#include "exchange/CrewList.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/DesignCsvWriter.h"
#include "exchange/DesignKml.h"
#include "exchange/ExportColumns.h"
#include "exchange/ImportSummary.h"
#include "exchange/SeaHeights.h"
#include "exchange/ShownTimes.h"
#include "exchange/SurveyCsvReader.h"
#include "exchange/SurveyCsvWriter.h"
#include "exchange/SurveyKml.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/IHost.h"
#include "lum_sdk/Text.h"
#include "model/CodeTables.h"
#include "model/CoordinateRecord.h"
#include "model/SurveyColumns.h"
#include "project/DesignDatabase.h"
#include "project/edits/EditParts.h"
#include "project/history/HistoryWriter.h"
#include "project/OverlayList.h"
#include "project/OwnFile.h"
#include "project/ParameterFiles.h"
#include "project/PointCorrection.h"
#include "project/PointRenaming.h"
#include "project/ProjectCreator.h"
#include "project/ProjectFile.h"
#include "project/ProjectLoader.h"
#include "project/ProjectSaver.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "quality/CheckKinds.h"
#include "quality/MeasuredPoint.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/QualityDescription.h"
#include "quality/QualityLimits.h"
#include "quality/RepeatChoice.h"
#include "quality/ResurveyResult.h"
#include "quality/Verdicts.h"
#include "reports/ReportInput.h"
#include "reports/ReportKinds.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cpl_conv.h>
#include <gdal.h>
#include <ogr_api.h>

#include <algorithm>
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

/// What every operation on files ends with: the log gets why it failed, or what the user is told.
Outcome logged(Outcome outcome)
{
    if (!outcome.isDone())
        basalt::logError(outcome.detail());
    else if (!outcome.text().isEmpty())
        basalt::logInfo(outcome.text().toStdString());
    return outcome;
}

/// The same for operations that answer by a number.
int answered(const Outcome& outcome, Outcome* asked)
{
    if (asked != nullptr)
        *asked = outcome;
    return logged(outcome).toFlag();
}

/// An import that is done tells what became of the file's lines, in words and in numbers.
Outcome withSummary(const Outcome& outcome, const ImportSummary& summary, ImportSummary* counts)
{
    if (counts != nullptr)
        *counts = summary;
    return outcome.isDone() ? Outcome::done(summary.toText()) : outcome;
}

Outcome noSuchPoint(const PointName& name)
{
    return Outcome::refused(
        QCoreApplication::translate("DataProcessDataManager",
                                    "Line %1 has no point %2 any more: nothing was changed.")
            .arg(QString::fromStdString(name.line), QString::fromStdString(name.point)));
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

// --- edits ---

EditedData DataProcessDataManager::editedData()
{
    return {m_design,
            m_survey,
            m_qualityParameters,
            m_designParameters,
            get_project_coord_transform().parameters(),
            [this](const IDictionary& parameters) { applyCoordSystem(parameters); },
            m_acceptances};
}

void DataProcessDataManager::setEditHandler(EditHandler handler)
{
    m_onEdit = std::move(handler);
}

int DataProcessDataManager::exchange(const std::shared_ptr<Edit>& edit, bool isTakenBack,
                                     Outcome* outcome)
{
    const bool wasChanged = isChanged();
    try {
        m_unsaved.makeRoom();
        edit->exchange(editedData());
        m_unsaved.add(edit, isTakenBack);
    } catch (const std::bad_alloc&) {
        return answered(
            Outcome::failed(QCoreApplication::translate(
                "DataProcessDataManager", "There is not enough memory: nothing was changed.")),
            outcome);
    }
    tellModified(wasChanged);
    return answered(Outcome::done(), outcome);
}

void DataProcessDataManager::make(const std::shared_ptr<Edit>& edit)
{
    m_unsaved.makeRoom();
    edit->exchange(editedData());
    keep(edit);
}

void DataProcessDataManager::keep(const std::shared_ptr<Edit>& edit)
{
    const bool wasChanged = isChanged();
    m_unsaved.add(edit, false);
    if (m_onEdit)
        m_onEdit(edit);
    tellModified(wasChanged);
}

template <class Points, class Read>
Outcome DataProcessDataManager::importPoints(const EditKind& kind, const QString& path,
                                             ImportSummary& summary, Read read)
{
    // All that can fail comes before the points.
    const auto edit = std::make_shared<Edit>(kind, 0, QFileInfo(path).absoluteFilePath());
    auto part = std::make_unique<ImportedPoints<Points>>();
    TakenOver<Points>& undo = part->undo();
    edit->add(std::move(part));
    m_unsaved.makeRoom();
    Outcome reading = read(summary, undo);
    if (!reading.isDone() || !summary.hasPoints())
        return reading;
    edit->setPoints(summary.pointsNew + summary.pointsReplaced);
    keep(edit);
    return reading;
}

void DataProcessDataManager::change(const EditKind& kind, EditScope which,
                                    const IDictionary& present, const IDictionary& wanted)
{
    if (dictionary_same(present, wanted))
        return;
    const auto edit = std::make_shared<Edit>(kind);
    edit->add(std::make_unique<Parameters>(which, basalt::Dictionary(wanted)));
    make(edit);
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

template <class Write>
int DataProcessDataManager::exportTo(const QString& path, Outcome* outcome, Write write)
{
    if (const Outcome check = checkNotOwn(m_place, path); !check.isDone())
        return answered(check, outcome);
    ProgressReporter progress(&m_host.eventManager());
    return answered(write(progress), outcome);
}

int DataProcessDataManager::exportDesignCsv(const QStringList& lines, const QString& path,
                                            bool onlyUnsurveyed, Outcome* outcome)
{
    return exportTo(path, outcome, [&](ProgressReporter& progress) {
        return writeDesignCsv(path, m_design, lines, onlyUnsurveyed, progress);
    });
}

int DataProcessDataManager::importDesignCsv(const QString& path, Outcome* outcome,
                                            ImportSummary* counts)
{
    ProgressReporter progress(&m_host.eventManager());
    ImportSummary summary;
    const Outcome reading = importPoints<DesignPoints>(
        EditKinds::kImportDesign, path, summary, [&](ImportSummary& read, auto& undo) {
            return readDesignCsv(path, m_design, progress, read, &undo);
        });
    return answered(withSummary(reading, summary, counts), outcome);
}

int DataProcessDataManager::exportSurveyCsv(const QStringList& lines, const QString& path,
                                            const QStringList& captions, Outcome* outcome)
{
    if (m_exportCaptions.isEmpty())
        m_exportCaptions = m_surveyCaptions;
    const SurveyCsvChoice choice{captions.isEmpty() ? m_exportCaptions : captions,
                                 get_system_status_dictionary().integer(status::kDegreeFormat)};
    return exportTo(path, outcome, [&](ProgressReporter& progress) {
        return writeSurveyCsv(path, m_survey, lines, choice, progress);
    });
}

int DataProcessDataManager::exportSurveyPoints(const std::vector<PointName>& points,
                                               const QString& path, Outcome* outcome)
{
    if (m_exportCaptions.isEmpty())
        m_exportCaptions = m_surveyCaptions;
    const SurveyCsvChoice choice{m_exportCaptions,
                                 get_system_status_dictionary().integer(status::kDegreeFormat)};
    return exportTo(path, outcome, [&](ProgressReporter& progress) {
        return writeSurveyCsv(path, m_survey, points, choice, progress);
    });
}

int DataProcessDataManager::importSurveyCsv(const QString& path, Outcome* outcome,
                                            ImportSummary* counts)
{
    ProgressReporter progress(&m_host.eventManager());
    ImportSummary summary;
    const Outcome reading = importPoints<SurveyPoints>(
        EditKinds::kImportSurvey, path, summary, [&](ImportSummary& read, auto& undo) {
            return readSurveyCsv(path, m_survey, progress, read, &undo);
        });
    return answered(withSummary(reading, summary, counts), outcome);
}

int DataProcessDataManager::exportDesignDatabase(const QStringList& lines, const QString& path,
                                                 bool onlyUnsurveyed, Outcome* outcome)
{
    return exportTo(path, outcome, [&](ProgressReporter& progress) {
        return writeDesignDatabase(path, {m_design, lines, onlyUnsurveyed},
                                   get_project_coord_transform().parameters(), progress);
    });
}

int DataProcessDataManager::exportDesignKml(const QStringList& lines, const QString& path,
                                            bool onlyUnsurveyed, Outcome* outcome)
{
    return exportTo(path, outcome, [&](ProgressReporter& progress) {
        return writeDesignKml(path, {m_design, lines, onlyUnsurveyed},
                              get_project_coord_transform(), progress);
    });
}

int DataProcessDataManager::exportSurveyKml(const QStringList& lines, const QString& path,
                                            Outcome* outcome)
{
    const auto words = [limits = qualityLimits()](const SurveyPoint& point) {
        std::vector<QualityRow> rows;
        ::describeQuality(point, limits, rows);
        QStringList texts;
        for (const QualityRow& row : rows)
            texts << row.text();
        if (const QString fault = resurveyFault(point); !fault.isEmpty())
            texts << fault;
        return texts.join(QLatin1Char(' '));
    };
    return exportTo(path, outcome, [&](ProgressReporter& progress) {
        return writeSurveyKml(path, {m_survey, lines, words}, get_project_coord_transform(),
                              progress);
    });
}

int DataProcessDataManager::exportCrewList(const std::vector<const Problem*>& problems,
                                           const QString& path, Outcome* outcome)
{
    const std::string_view code = qualityParameter(m_qualityParameters, kResurveyCode);
    CrewList list;
    for (const Problem* const problem : problems) {
        const DesignPoint* const point =
            measuredPoint(m_design, problem->line, problem->point, code);
        if (problem->point.empty())
            list.addWithoutPoint();
        else if (point == nullptr)
            list.addUnknown(problem->line, problem->point);
        else
            list.add(*point, problem->kind->what(*problem).toStdString());
    }
    return exportTo(path, outcome, [&](ProgressReporter& progress) {
        return path.endsWith(QLatin1String(".kml"), Qt::CaseInsensitive)
                   ? writeCrewKml(path, list, get_project_coord_transform(), progress)
                   : writeCrewCsv(path, list, progress);
    });
}

int DataProcessDataManager::importSurveyDatabase(const QString& path, Outcome* outcome,
                                                 ImportSummary* counts)
{
    if (const Outcome check = checkNotOwn(m_place, path); !check.isDone())
        return answered(check, outcome);
    ProgressReporter progress(&m_host.eventManager());
    ImportSummary summary;
    const Outcome reading = importPoints<SurveyPoints>(
        EditKinds::kImportSurvey, path, summary, [&](ImportSummary& read, auto& undo) {
            return readSurveyDatabase(
                path,
                {m_survey, get_project_coord_transform().parameters(), m_onOtherSystem, &undo},
                progress, read);
        });
    if (reading.isDone() && summary.hasPoints())
        recomputeSeaHeights();
    return answered(withSummary(reading, summary, counts), outcome);
}

int DataProcessDataManager::writeReport(const ReportKind& kind, const QString& path,
                                        const ReportChoice& choice, Outcome* outcome)
{
    const IDictionary& program = get_system_config_parameter().dictionary();
    return exportTo(path, outcome, [&](ProgressReporter& progress) {
        return kind.write(path,
                          {m_design, m_survey, m_qualityParameters,
                           get_project_coord_transform().parameters(), m_place.name, m_place.file,
                           lum::toQString(program.text("name")) + QLatin1Char(' ') +
                               lum::toQString(program.text("version")),
                           choice, progress});
    });
}

void DataProcessDataManager::setOtherSystemHandler(OtherSystemHandler handler)
{
    m_onOtherSystem = std::move(handler);
}

std::size_t DataProcessDataManager::deleteSurveyPoints(const std::vector<PointName>& points)
{
    return deleteResults(PointNames(points));
}

std::size_t DataProcessDataManager::deleteResults(PointNames&& names)
{
    const std::size_t before = m_survey.pointCount();
    const auto edit = std::make_shared<Edit>(EditKinds::kDeleteResults);
    edit->add(std::make_unique<SomePoints<SurveyPoints>>(std::move(names), SurveyPoints()));
    m_unsaved.makeRoom();
    edit->exchange(editedData());
    const std::size_t count = before - m_survey.pointCount();
    edit->setPoints(count);
    if (count != 0)
        keep(edit);
    return count;
}

std::size_t DataProcessDataManager::deleteSurveyLines(const QStringList& lines)
{
    PointNames names;
    for (const QString& number : lines) {
        const SurveyPoints::Line* const line = m_survey.findLine(number.toStdString());
        std::vector<std::string>& numbers = names.of(number.toStdString());
        for (auto point = line == nullptr ? SurveyPoints::Line::const_iterator() : line->begin();
             line != nullptr && point != line->end(); ++point)
            numbers.push_back(point->pointNumber);
    }
    return deleteResults(std::move(names));
}

int DataProcessDataManager::correctSurveyPoint(const PointName& name,
                                               const SurveyCorrection& correction, Outcome* outcome,
                                               PointName* filedAs)
{
    if (m_survey.find(name.line, name.point) == nullptr)
        return answered(noSuchPoint(name), outcome);
    if (const auto fault = faultOf(correction))
        return answered(Outcome::refused(fault->text), outcome);
    PointName place = name;
    SurveyPoints other = corrected(m_survey, place, correction);
    if (!other.empty()) {
        const auto edit = std::make_shared<Edit>(EditKinds::kCorrectResult, 1);
        edit->add(std::make_unique<CorrectedPoint<SurveyPoints>>(name, place, std::move(other)));
        make(edit);
    }
    if (filedAs != nullptr)
        *filedAs = std::move(place);
    return answered(Outcome::done(), outcome);
}

int DataProcessDataManager::renameResults(const std::vector<Renaming>& renamings, Outcome* outcome)
{
    RenamedPoints renamed;
    const Outcome renaming =
        ::renameResults(m_design, m_survey, qualityParameter(m_qualityParameters, kResurveyCode),
                        renamings, renamed);
    if (renaming.isDone() && !renamings.empty()) {
        const auto edit = std::make_shared<Edit>(EditKinds::kRenameResults, renamings.size());
        edit->add(std::make_unique<SomePoints<SurveyPoints>>(std::move(renamed.names),
                                                             std::move(renamed.results)));
        make(edit);
    }
    return answered(renaming, outcome);
}

int DataProcessDataManager::correctDesignPoint(const PointName& name,
                                               const DesignCorrection& correction, Outcome* outcome)
{
    const DesignPoint* const point = m_design.find(name.line, name.point);
    if (point == nullptr)
        return answered(noSuchPoint(name), outcome);
    if (const auto fault = faultOf(correction))
        return answered(Outcome::refused(fault->text), outcome);
    DesignPoints other = corrected(*point, correction);
    if (!other.empty()) {
        const auto edit = std::make_shared<Edit>(EditKinds::kCorrectDesign, 1);
        edit->add(std::make_unique<CorrectedPoint<DesignPoints>>(name, name, std::move(other)));
        make(edit);
    }
    return answered(Outcome::done(), outcome);
}

std::size_t DataProcessDataManager::restorePoints(HistoryPoints&& points)
{
    const std::size_t count = points.design.pointCount() + points.results.pointCount();
    if (count == 0)
        return 0;
    const auto edit = std::make_shared<Edit>(EditKinds::kRestore, count);
    const auto add = [&]<class Points>(Points part, PointNames names = {}) {
        names.add(part.names());
        edit->add(std::make_unique<SomePoints<Points>>(std::move(names), std::move(part)));
    };
    if (!points.design.empty())
        add(std::move(points.design));
    if (!points.results.empty())
        add(std::move(points.results), std::move(points.leaving));
    make(edit);
    if ((edit->scope() & kSurveyScope) != 0)
        recomputeSeaHeights();
    return count;
}

std::size_t DataProcessDataManager::accept(std::vector<Acceptance> problems)
{
    std::erase_if(problems, [this](const Acceptance& problem) {
        const Acceptance* const present = m_acceptances.find(problem);
        return present != nullptr && present->reason == problem.reason;
    });
    const QString person = HistoryAuthor::current().person;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    Acceptances accepted;
    for (const Acceptance& problem : problems) {
        Acceptance acceptance = problem;
        acceptance.person = person;
        acceptance.time = now;
        accepted.set(std::move(acceptance));
    }
    const std::size_t count =
        changeAcceptances(EditKinds::kAcceptProblems, problems, std::move(accepted));
    const auto hasFirstReason = [&](const Acceptance& problem) {
        return problem.reason == problems.front().reason;
    };
    if (count != 0 && std::ranges::all_of(problems, hasFirstReason))
        m_unsaved.setReason(m_unsaved.entries().size() - 1, problems.front().reason);
    return count;
}

std::size_t DataProcessDataManager::endAcceptances(std::vector<Acceptance> problems)
{
    std::erase_if(problems, [this](const Acceptance& problem) {
        return m_acceptances.find(problem) == nullptr;
    });
    return changeAcceptances(EditKinds::kEndAcceptances, problems, {});
}

std::size_t DataProcessDataManager::changeAcceptances(const EditKind& kind,
                                                      const std::vector<Acceptance>& problems,
                                                      Acceptances&& other)
{
    auto part = std::make_unique<AcceptedProblems>(problems, std::move(other));
    const std::size_t count = part->problems();
    if (count == 0)
        return 0;
    const auto edit = std::make_shared<Edit>(kind, count);
    edit->add(std::move(part));
    make(edit);
    return count;
}

std::vector<RepeatedPoint> DataProcessDataManager::repeatedPoints() const
{
    return ::repeatedPoints(m_design, m_survey,
                            qualityParameter(m_qualityParameters, kResurveyCode),
                            lum::lengthUnitOf(get_project_coord_transform().parameters()).metres);
}

void DataProcessDataManager::resolveRepeats(ResolvedRepeats&& resolved)
{
    if (resolved.results.empty())
        return;
    const auto edit =
        std::make_shared<Edit>(EditKinds::kResolveRepeats, resolved.results.pointCount());
    edit->add(std::make_unique<SomePoints<SurveyPoints>>(std::move(resolved.names),
                                                         std::move(resolved.results)));
    make(edit);
}

int DataProcessDataManager::generateDesign(DesignLines lines, const IDictionary& parameters,
                                           Outcome* outcome)
{
    ProgressReporter progress(&m_host.eventManager());
    const auto edit = std::make_shared<Edit>(EditKinds::kGenerateDesign);
    auto replaced = std::make_unique<AllPoints<DesignPoints>>();
    DesignPoints& before = replaced->other();
    auto changed =
        std::make_unique<Parameters>(kDesignParameterScope, basalt::Dictionary(parameters));
    EditPart& wanted = *changed;
    edit->add(std::move(replaced));
    edit->add(std::move(changed));
    m_unsaved.makeRoom();
    const Outcome generating = ::generateDesign(parameters, lines, m_design, progress, &before);
    if (generating.isDone()) {
        wanted.exchange(editedData());
        edit->setPoints(m_design.pointCount());
        keep(edit);
    }
    return answered(generating, outcome);
}

void DataProcessDataManager::setQualityParameters(const IDictionary& parameters)
{
    change(EditKinds::kQualityLimits, kQualityScope, m_qualityParameters, parameters);
}

void DataProcessDataManager::setDesignParameters(const IDictionary& parameters)
{
    change(EditKinds::kDesignParameters, kDesignParameterScope, m_designParameters, parameters);
}

void DataProcessDataManager::setCoordSystem(const IDictionary& parameters)
{
    const IDictionary& present = get_project_coord_transform().parameters();
    if (dictionary_same(present, parameters)) // its geoid may be another one now
        applyCoordSystem(basalt::Dictionary(parameters));
    else
        change(EditKinds::kCoordSystem, kCoordSystemScope, present, parameters);
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
