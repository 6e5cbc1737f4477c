#pragma once

class IEventManager;

/// What the platform offers to every component. It outlives all of them.
class IHost
{
public:
    virtual ~IHost() = default;
    [[nodiscard]] virtual IEventManager& eventManager() = 0;
};

/// The event manager of the GUI thread.
[[nodiscard]] IEventManager* controller_event_manager_onqt_get_instance(IHost* host);
