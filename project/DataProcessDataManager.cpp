#include "project/DataProcessDataManager.h"

#include "app/protocol/Events.h"
#include "app/protocol/Payloads.h"
#include "app/protocol/ProgressReporter.h"
#include "app/protocol/StatusKeys.h"
#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/KeyList.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/DesignCsvWriter.h"
#include "exchange/ExportColumns.h"
#include "exchange/ImportSummary.h"
#include "exchange/SurveyCsvReader.h"
#include "exchange/SurveyCsvWriter.h"
#include "lum_sdk/IHost.h"
#include "lum_sdk/SystemDictionaries.h"
#include "project/model/CodeTables.h"
#include "project/model/SurveyColumns.h"
#include "project/ParameterFiles.h"
#include "project/ProjectLoader.h"
#include "project/ProjectSaver.h"

#include <QCoreApplication>

#include <cstring>

namespace {
DataProcessDataManager* managerInUse = nullptr;

QString databasePath(const QString& folder, const QString& name)
{
    return folder + QLatin1Char('/') + name + QStringLiteral(".db");
}
int exported(const QString& path, const QString& fault)
{
    if (fault.isEmpty())
        return 1;
    basalt::logError("Cannot write \"" + path.toStdString() + "\": " + fault.toStdString());
    return 0;
}

int imported(bool isRead, ImportSummary& own, ImportSummary* asked)
{
    const std::string text = own.toText().toStdString();
    if (isRead)
        basalt::logInfo(text);
    else
        basalt::logError(text);
    if (asked != nullptr)
        *asked = std::move(own);
    return isRead ? 1 : 0;
}
} // namespace

DataProcessDataManager::DataProcessDataManager(IHost* host)
    : m_host(*host), m_subscription(*this, events::kDbQueryProcess, host->eventManager()),
      m_surveyCaptions(::surveyCaptions()),
      m_exportCaptions(::exportCaptions(exportColumns(get_system_ini_parameter().dictionary())))
{
    if (managerInUse == nullptr)
        managerInUse = this;
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

StoreResult DataProcessDataManager::openProject(const QString& folder, const QString& name)
{
    basalt::Dictionary quality;
    basalt::Dictionary design;
    if (const QString fault = ParameterFiles::read(folder, quality, design); !fault.isEmpty())
        return {false, fault};
    StoreResult result = load(databasePath(folder, name));
    if (result.isDone) {
        dictionary_copy(quality, m_qualityParameters);
        dictionary_copy(design, m_designParameters);
    }
    return result;
}

StoreResult DataProcessDataManager::saveProject(const QString& folder, const QString& name)
{
    StoreResult result = save(databasePath(folder, name));
    if (!result.isDone)
        return result;
    if (const QString fault =
            ParameterFiles::write(folder, m_qualityParameters, m_designParameters);
        !fault.isEmpty())
        return {false, fault};
    return result;
}

void DataProcessDataManager::clear()
{
    m_design.clear();
    m_survey.clear();
}

StoreResult DataProcessDataManager::load(const QString& path)
{
    ProgressReporter progress(&m_host.eventManager());
    return ProjectLoader(m_database, progress)
        .load(path.toStdString(), m_design, m_survey, m_coordParameters);
}

StoreResult DataProcessDataManager::save(const QString& path)
{
    ProgressReporter progress(&m_host.eventManager());
    return ProjectSaver(m_database, progress)
        .save(path.toStdString(), m_design, m_survey, m_coordParameters);
}

int DataProcessDataManager::exportDesignCsv(const QStringList& lines, const QString& path,
                                            bool onlyUnsurveyed)
{
    ProgressReporter progress(&m_host.eventManager());
    return exported(path, writeDesignCsv(path, m_design, lines, onlyUnsurveyed, progress));
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
    return exported(path,
                    writeSurveyCsv(path, m_survey, lines, {m_exportCaptions, format}, progress));
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
