#include "project/DataProcessDataManager.h"

#include "app/protocol/Events.h"
#include "app/protocol/Payloads.h"
#include "app/protocol/ProgressReporter.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/IHost.h"
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
} // namespace

DataProcessDataManager::DataProcessDataManager(IHost* host)
    : m_host(*host), m_subscription(*this, events::kDbQueryProcess, host->eventManager()),
      m_surveyCaptions(::surveyCaptions())
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
