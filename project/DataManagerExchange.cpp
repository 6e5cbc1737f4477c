#include "exchange/CrewList.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/DesignCsvWriter.h"
#include "exchange/DesignKml.h"
#include "exchange/ImportSummary.h"
#include "exchange/SurveyCsvReader.h"
#include "exchange/SurveyCsvWriter.h"
#include "exchange/SurveyKml.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/IHost.h"
#include "lum_sdk/Text.h"
#include "model/SurveyColumns.h"
#include "project/DataProcessDataManager.h"
#include "project/DesignDatabase.h"
#include "project/edits/EditParts.h"
#include "project/LoggedOutcome.h"
#include "project/OwnFile.h"
#include "protocol/StatusKeys.h"
#include "quality/MeasuredPoint.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/QualityDescription.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyResult.h"
#include "reports/ReportInput.h"
#include "reports/ReportKinds.h"

#include <QFileInfo>

// Imports, exports and reports.

template <class Points, class Read>
int DataProcessDataManager::importPoints(const EditKind& kind, const QString& path,
                                         Outcome* outcome, ImportSummary* counts, Read read)
{
    // All that can fail comes before the points.
    const auto edit = std::make_shared<Edit>(kind, 0, QFileInfo(path).absoluteFilePath());
    auto part = std::make_unique<ImportedPoints<Points>>();
    TakenOver<Points>& undo = part->undo();
    edit->add(std::move(part));
    m_unsaved.makeRoom();
    ProgressReporter progress(&m_host.eventManager());
    ImportSummary summary;
    const Outcome reading = read(progress, summary, undo);
    if (counts != nullptr)
        *counts = summary;
    if (!reading.isDone())
        return answered(reading, outcome);
    if (summary.hasPoints()) {
        edit->setPoints(summary.pointsNew + summary.pointsReplaced);
        keep(edit);
    }
    return answered(Outcome::done(summary.toText()), outcome);
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
    const auto read = [&](ProgressReporter& progress, ImportSummary& summary, auto& undo) {
        return readDesignCsv(path, m_design, progress, summary, &undo);
    };
    return importPoints<DesignPoints>(EditKinds::kImportDesign, path, outcome, counts, read);
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
    const auto read = [&](ProgressReporter& progress, ImportSummary& summary, auto& undo) {
        return readSurveyCsv(path, m_survey, progress, summary, &undo);
    };
    return importPoints<SurveyPoints>(EditKinds::kImportSurvey, path, outcome, counts, read);
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
    const auto read = [&](ProgressReporter& progress, ImportSummary& summary, auto& undo) {
        const IDictionary& system = get_project_coord_transform().parameters();
        return readSurveyDatabase(path, {m_survey, system, m_onOtherSystem, &undo}, progress,
                                  summary);
    };
    ImportSummary summary;
    const int isRead =
        importPoints<SurveyPoints>(EditKinds::kImportSurvey, path, outcome, &summary, read);
    if (isRead == 1 && summary.hasPoints())
        recomputeSeaHeights();
    if (counts != nullptr)
        *counts = summary;
    return isRead;
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
                           choice, progress, [this] { return findProblems(); }});
    });
}

void DataProcessDataManager::setOtherSystemHandler(OtherSystemHandler handler)
{
    m_onOtherSystem = std::move(handler);
}
