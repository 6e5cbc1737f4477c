#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <string>
#include <utility>
#include <vector>

/// Keeps the events of some names while it lives, in the order in which they were published.
class EventLog final : public IEventHandler
{
public:
    struct Event
    {
        std::string name;
        std::string payload; ///< "(null)" for an event without one
    };

    /// \param names comma-separated
    EventLog(IEventManager& manager, std::string_view names) : m_subscription(*this, names, manager)
    {
    }

    void handleEvent(const char* eventName, const char* payload, int /*reserved*/) override
    {
        events.push_back({eventName, payload != nullptr ? payload : "(null)"});
    }

    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> all;
        for (const Event& event : events)
            all.push_back(event.name);
        return all;
    }
    [[nodiscard]] std::vector<std::string> payloads() const
    {
        std::vector<std::string> all;
        for (const Event& event : events)
            all.push_back(event.payload);
        return all;
    }

    /// "NAME payload" of all events since the last call; the name alone of one without a payload.
    std::vector<std::string> told()
    {
        std::vector<std::string> all;
        for (const auto& [name, payload] : std::exchange(events, {}))
            all.push_back(payload == "(null)" ? name : name + ' ' + payload);
        return all;
    }

    std::vector<Event> events;

private:
    EventSubscription m_subscription;
};
