#pragma once

#include "lum_sdk/events/IEventManager.h"

#include <QObject>

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The event manager of the GUI thread; it belongs to the thread that makes it.
class EventManager final : public QObject, public IEventManager
{
    Q_OBJECT

public:
    void subscribe(const char* eventName, IEventHandler* handler) override;
    void unsubscribe(const char* eventName, IEventHandler* handler) override;
    void publish(const char* eventName, const char* payload, int reserved) override;

private:
    /// The listeners of one name. A list is never thrown away, so that it can be walked while
    /// handlers come and go.
    struct Listeners
    {
        std::vector<IEventHandler*> handlers; ///< null where one left during a delivery
        int deliveries = 0;                   ///< how many are under way, one inside the other
        bool hasGaps = false;
    };

    struct NameHash
    {
        using is_transparent = void; // looks up by view, without making a string
        std::size_t operator()(std::string_view name) const noexcept;
    };

    /// False only when nobody has ever subscribed to the name: told without a look-up, by any
    /// thread, since most events of a long operation have no listener.
    [[nodiscard]] bool mayBeHeard(std::string_view name) const;
    void rememberHeard(std::string_view name);

    /// Not part of `publish`, which returns the quicker for it when nobody listens.
    void publishHeard(std::string_view name, const char* payload, int reserved);
    void publishLater(const char* eventName, const char* payload, int reserved);
    static void deliver(Listeners& listeners, const char* eventName, const char* payload,
                        int reserved);

    std::unordered_map<std::string, Listeners, NameHash, std::equal_to<>> m_listeners;
    std::array<std::atomic<std::uint64_t>, 16> m_heard{}; ///< a bit for each name, by its hash
};
