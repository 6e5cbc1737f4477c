#pragma once

#include "lum_desktop_sdkx/IGuiAssistant.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/EditSteps.h"
#include "views/SelectionFollower.h"

#include <memory>
#include <string>

class IDesktopHost;

/// The program's assistant, registered as "DataProcess5". It owns the data manager, adds the layers
/// to the map, opens the tables, shows a selection in all windows, asks before the program closes,
/// keeps the title true, and turns the position of the map's cursor into the text of the status
/// bar, which is empty without a project.
class DataProcess5Assistant final : public GuiAssistantBase, public IEventHandler
{
public:
    DataProcess5Assistant(const char* config, IDesktopHost* host);

    int onMapViewCreated() override;
    int openMainWindows() override;
    /// Offers to save an open project, then asks whether to exit. After a yes the project is closed
    /// and the data manager ended.
    int queryClose() override;
    /// A project, or points for the open one.
    [[nodiscard]] bool canOpen(const QString& path) const override;
    int openFile(const QString& path) override;

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    void addLayer(const char* name, const char* className, const char* caption);
    void announcePosition();

    IDesktopHost& m_host; // outlives the assistant
    EventSubscription m_subscription;
    std::string m_position; ///< as last told by the map; empty when it does not count any more
    std::unique_ptr<DataProcessDataManager> m_dataManager;
    EditSteps m_steps; // of the manager
    SelectionFollower m_follower;
};
