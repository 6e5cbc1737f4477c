#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <functional>

/// Calls a function for each event of some names while it lives.
class OnEvent final : public IEventHandler
{
public:
    /// \param names comma-separated
    OnEvent(IEventManager& manager, std::string_view names,
            std::function<void(const char* name)> call)
        : m_call(std::move(call)), m_subscription(*this, names, manager)
    {
    }
    void handleEvent(const char* name, const char* /*payload*/, int /*reserved*/) override
    {
        m_call(name);
    }

private:
    std::function<void(const char*)> m_call;
    EventSubscription m_subscription;
};
