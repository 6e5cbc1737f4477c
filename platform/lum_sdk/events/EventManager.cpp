#include "lum_sdk/events/EventManager.h"

#include "basalt_utilities/ILogger.h"

#include <QByteArray>
#include <QThread>

#include <algorithm>
#include <cstdint>
#include <cstring>

std::size_t EventManager::NameHash::operator()(std::string_view name) const noexcept
{
    // Length, head and tail tell event names apart, and cost less than walking the whole name.
    constexpr std::size_t kWord = sizeof(std::uint64_t);
    std::uint64_t head = 0;
    std::uint64_t tail = 0;
    if (name.size() >= kWord) {
        std::memcpy(&head, name.data(), kWord);
        std::memcpy(&tail, name.data() + (name.size() - kWord), kWord);
    } else {
        std::memcpy(&head, name.data(), name.size());
    }
    const std::uint64_t mixed = head ^ ((tail << 29U) | (tail >> 35U)) ^ name.size();
    return (mixed * 0x9E3779B97F4A7C15ULL) >> 20U; // the upper bits are the well mixed ones
}

bool EventManager::mayBeHeard(std::string_view name) const
{
    const std::size_t hash = NameHash()(name);
    const std::uint64_t word =
        m_heard[(hash >> 6U) % m_heard.size()].load(std::memory_order_relaxed);
    return ((word >> (hash % 64)) & 1U) != 0;
}

void EventManager::rememberHeard(std::string_view name)
{
    const std::size_t hash = NameHash()(name);
    m_heard[(hash >> 6U) % m_heard.size()].fetch_or(std::uint64_t{1} << (hash % 64),
                                                    std::memory_order_relaxed);
}

void EventManager::subscribe(const char* eventName, IEventHandler* handler)
{
    Q_ASSERT(QThread::currentThread() == thread());
    auto& handlers = m_listeners[eventName].handlers;
    if (std::find(handlers.begin(), handlers.end(), handler) == handlers.end())
        handlers.push_back(handler);
    rememberHeard(eventName);
}

void EventManager::unsubscribe(const char* eventName, IEventHandler* handler)
{
    Q_ASSERT(QThread::currentThread() == thread());
    const auto found = m_listeners.find(std::string_view(eventName));
    if (found == m_listeners.end())
        return;
    auto& [handlers, deliveries, hasGaps] = found->second;
    const auto place = std::find(handlers.begin(), handlers.end(), handler);
    if (place == handlers.end())
        return;
    if (deliveries > 0) {
        *place = nullptr;
        hasGaps = true;
    } else {
        handlers.erase(place);
    }
}

void EventManager::publish(const char* eventName, const char* payload, int reserved)
{
    const std::string_view name(eventName);
    if (mayBeHeard(name))
        publishHeard(name, payload, reserved);
}

void EventManager::publishHeard(std::string_view name, const char* payload, int reserved)
{
    if (QThread::currentThread() != thread()) {
        publishLater(name.data(), payload, reserved);
        return;
    }
    const auto found = m_listeners.find(name);
    if (found != m_listeners.end())
        deliver(found->second, name.data(), payload, reserved);
}

void EventManager::publishLater(const char* eventName, const char* payload, int reserved)
{
    // QByteArray(nullptr) is null, and its data() would be an empty text: keep the difference.
    const QByteArray name(eventName);
    const QByteArray text(payload);
    QMetaObject::invokeMethod(
        this,
        [this, name, text, reserved] {
            publish(name.constData(), text.isNull() ? nullptr : text.constData(), reserved);
        },
        Qt::QueuedConnection);
}

void EventManager::deliver(Listeners& listeners, const char* eventName, const char* payload,
                           int reserved)
{
    ++listeners.deliveries;
    const std::size_t count = listeners.handlers.size(); // who joins now waits for the next event
    for (std::size_t i = 0; i < count; ++i) {
        IEventHandler* const handler = listeners.handlers[i];
        if (handler == nullptr)
            continue;
        try {
            handler->handleEvent(eventName, payload, reserved);
        } catch (const std::exception& fault) {
            basalt::logError(std::string("A handler of ") + eventName + " failed: " + fault.what());
        } catch (...) {
            basalt::logError(std::string("A handler of ") + eventName + " failed");
        }
    }
    if (--listeners.deliveries == 0 && listeners.hasGaps) {
        auto& handlers = listeners.handlers;
        handlers.erase(std::remove(handlers.begin(), handlers.end(), nullptr), handlers.end());
        listeners.hasGaps = false;
    }
}
