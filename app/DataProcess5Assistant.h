#pragma once

#include "lum_desktop_sdkx/IGuiAssistant.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/DataProcessDataManager.h"

#include <memory>

class IDesktopHost;

/// The program's assistant, registered as "DataProcess5": it owns the data manager, puts the layers
/// on the map and the tables beside it, asks before the program closes, and turns the map's cursor
/// position into the text of the status bar.
class DataProcess5Assistant final : public GuiAssistantBase, public IEventHandler
{
public:
    DataProcess5Assistant(const char* config, IDesktopHost* host);

    int onMapViewCreated() override;
    int openMainWindows() override;
    /// Saves an open project first, whatever the answer will be.
    int queryClose() override;
    int openFile(const QString& path) override;

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    void addLayer(const char* name, const char* className, const char* caption);
    void announcePosition(const char* payload);

    IDesktopHost& m_host; // outlives the assistant
    EventSubscription m_subscription;
    std::unique_ptr<DataProcessDataManager> m_dataManager;
};
