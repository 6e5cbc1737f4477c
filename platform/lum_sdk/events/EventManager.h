#pragma once

#include "lum_sdk/events/IEventManager.h"

#include <QObject>

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The event manager. It belongs to the thread that makes it, the GUI thread.
class EventManager final : public QObject, public IEventManager
{
    Q_OBJECT

public:
    void subscribe(const char* eventName, IEventHandler* handler) override;
    void unsubscribe(const char* eventName, IEventHandler* handler) override;
    void publish(const char* eventName, const char* payload, int reserved) override;

private:
    /// The handlers of one name. The list is never removed from the map, and it shrinks only while
    /// no delivery walks it: handlers may come and go during a delivery.
    struct Listeners
    {
        std::vector<IEventHandler*> handlers; ///< null where one left during a delivery
        int deliveries = 0;                   ///< running now; a handler may publish the same name
        bool hasGaps = false;                 ///< whether there are nulls to remove
    };

    /// Lets a name be looked up without making a string of it.
    struct NameHash : std::hash<std::string_view>
    {
        using is_transparent = void;
    };

    void publishLater(const char* eventName, const char* payload, int reserved);
    static void deliver(Listeners& listeners, const char* eventName, const char* payload,
                        int reserved);

    std::unordered_map<std::string, Listeners, NameHash, std::equal_to<>> m_listeners;
};
