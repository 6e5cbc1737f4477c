#pragma once

#include "lum_sdk/events/EventManager.h"
#include "lum_sdk/IHost.h"

/// A host without windows, for tools that run without a display.
class Host : public IHost
{
public:
    [[nodiscard]] IEventManager& eventManager() override { return m_eventManager; }

private:
    EventManager m_eventManager;
};
