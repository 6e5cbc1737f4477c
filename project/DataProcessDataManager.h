#pragma once

#include "app/protocol/EventSubscription.h"
#include "lum_sdk/IEventManager.h"

class IHost;

/// The store of the open project.
///
/// The assistant makes one at start and ends it when the application closes; everybody else
/// reaches it through `instance`.
class DataProcessDataManager final : public IEventHandler
{
public:
    /// The first manager becomes the instance.
    explicit DataProcessDataManager(IHost* host);
    ~DataProcessDataManager() override;

    DataProcessDataManager(const DataProcessDataManager&) = delete;
    DataProcessDataManager& operator=(const DataProcessDataManager&) = delete;

    /// The manager of this process; null before it is made and after it is ended. For the GUI
    /// thread only: what paints on a worker works on a copy that was made here.
    [[nodiscard]] static DataProcessDataManager* instance();

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    void reportQuery(const char* payload);

    IHost& m_host; // outlives the manager
    EventSubscription m_subscription;
};
