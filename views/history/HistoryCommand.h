#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/ui/ProjectCommandBase.h"

/// Opens the history of the project; on "ON_SHOW_POINT_HISTORY", with one point alone.
class HistoryCommand final : public ProjectCommandBase, public IEventHandler
{
public:
    HistoryCommand(const char* config, IDesktopHost* desktop);

    void execute() override;
    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    EventSubscription m_subscription;
};
