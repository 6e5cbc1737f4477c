#include "lum_sdk/events/EventManager.h"

#include "basalt_utilities/ILogger.h"

#include <QByteArray>
#include <QThread>

#include <algorithm>
#include <exception>

void EventManager::subscribe(const char* eventName, IEventHandler* handler)
{
    Q_ASSERT(QThread::currentThread() == thread());
    auto& handlers = m_listeners[eventName].handlers;
    if (std::find(handlers.begin(), handlers.end(), handler) == handlers.end())
        handlers.push_back(handler);
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
    if (QThread::currentThread() != thread()) {
        publishLater(eventName, payload, reserved);
        return;
    }
    const auto found = m_listeners.find(std::string_view(eventName));
    if (found != m_listeners.end())
        deliver(found->second, eventName, payload, reserved);
}

void EventManager::publishLater(const char* eventName, const char* payload, int reserved)
{
    // An event without a payload stays one: the byte array of a null pointer is null, but its text
    // is empty.
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
    const std::size_t count = listeners.handlers.size(); // new ones get the next event
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
