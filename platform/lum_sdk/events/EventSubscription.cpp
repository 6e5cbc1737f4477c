#include "lum_sdk/events/EventSubscription.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/events/IEventManager.h"

namespace {
constexpr std::size_t kLongestName = 100;
} // namespace

EventSubscription::EventSubscription(IEventHandler& handler, std::string_view names,
                                     IEventManager& manager)
    : m_handler(handler), m_manager(manager)
{
    while (!names.empty()) {
        const std::string_view name = basalt::trimmed(next_word3(names, ','));
        if (name.size() > kLongestName)
            basalt::logError("Not subscribed, more than 100 characters: " + std::string(name));
        else if (!name.empty())
            m_names.emplace_back(name);
    }
    for (const std::string& name : m_names)
        m_manager.subscribe(name.c_str(), &m_handler);
}

EventSubscription::~EventSubscription()
{
    for (const std::string& name : m_names)
        m_manager.unsubscribe(name.c_str(), &m_handler);
}
