#pragma once

/// Somebody who listens to named events.
class IEventHandler
{
public:
    virtual ~IEventHandler() = default;

    /// Called on the GUI thread. Unknown names are ignored.
    /// \param eventName upper case with underscores, compared byte for byte
    /// \param payload a key list in UTF-8, null when the event carries none; valid for this call
    /// \param reserved always 0
    virtual void handleEvent(const char* eventName, const char* payload, int reserved) = 0;
};

/// Named events between components that do not know one another.
///
/// Delivery is synchronous, to the subscribers in the order of subscription. Subscribing,
/// unsubscribing and publishing from inside a handler are safe: who unsubscribes gets nothing
/// more, who subscribes gets the next event. A publish from another thread than the manager's is
/// delivered on the manager's thread, later and in order; subscribing is for that thread only.
class IEventManager
{
public:
    virtual ~IEventManager() = default;

    /// A handler that is subscribed to the name already stays so, once.
    virtual void subscribe(const char* eventName, IEventHandler* handler) = 0;
    virtual void unsubscribe(const char* eventName, IEventHandler* handler) = 0;
    virtual void publish(const char* eventName, const char* payload, int reserved) = 0;
};
