#include "project/DataProcessDataManager.h"

#include "app/protocol/Events.h"
#include "app/protocol/Payloads.h"
#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/IHost.h"

#include <QCoreApplication>

#include <cstring>

namespace {
DataProcessDataManager* managerInUse = nullptr;
} // namespace

DataProcessDataManager::DataProcessDataManager(IHost* host)
    : m_host(*host), m_subscription(*this, events::kDbQueryProcess, host->eventManager())
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
