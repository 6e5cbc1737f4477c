#pragma once

#include <initializer_list>
#include <string>

namespace lum {

/// Event names separated by commas, in this order, as an `EventSubscription` takes them.
[[nodiscard]] inline std::string eventNames(std::initializer_list<const char*> names)
{
    std::string list;
    for (const char* const name : names)
        list.append(list.empty() ? "" : ",").append(name);
    return list;
}

} // namespace lum
