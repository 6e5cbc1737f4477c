#pragma once

/// A listener for named events.
class IEventHandler
{
public:
    virtual ~IEventHandler() = default;

    /// Called on the GUI thread. An implementation ignores names that it does not know.
    /// \param eventName upper case with underscores, compared byte for byte
    /// \param payload a key list in UTF-8, null when the event carries none; valid for this call
    /// \param reserved always 0
    virtual void handleEvent(const char* eventName, const char* payload, int reserved) = 0;
};

/// Named events between components that do not know one another.
///
/// Delivery is synchronous, to the subscribers in the order of subscription. Subscribing,
/// unsubscribing and publishing from inside a handler are safe: a handler that unsubscribes gets
/// nothing more, one that subscribes gets the next event. An event that another thread publishes
/// is queued and delivered on the manager's thread, in the order of publishing. Only the manager's
/// thread may subscribe and unsubscribe.
class IEventManager
{
public:
    virtual ~IEventManager() = default;

    /// A second subscription of the same handler to the same name does nothing.
    virtual void subscribe(const char* eventName, IEventHandler* handler) = 0;
    virtual void unsubscribe(const char* eventName, IEventHandler* handler) = 0;
    virtual void publish(const char* eventName, const char* payload, int reserved) = 0;
};
