#pragma once

#include <string>
#include <string_view>
#include <vector>

class IEventHandler;
class IEventManager;

/// Keeps a component subscribed while it lives, as a member of the component.
class EventSubscription
{
public:
    /// \param names comma-separated event names, subscribed in this order; empty ones are skipped,
    ///        one of more than 100 characters is refused and logged
    EventSubscription(IEventHandler& handler, std::string_view names, IEventManager& manager);
    ~EventSubscription();

    EventSubscription(const EventSubscription&) = delete;
    EventSubscription& operator=(const EventSubscription&) = delete;

private:
    IEventHandler& m_handler;
    IEventManager& m_manager; // outlives every component
    std::vector<std::string> m_names;
};
