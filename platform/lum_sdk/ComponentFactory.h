#pragma once

#include "basalt_utilities/ILogger.h"

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

/// Components of one kind, made by the name under which their class was registered.
///
/// The C-style functions of each kind (`extensible_factory_register_...`, `_get_...`,
/// `_release_...`) forward to one such object. `Arguments` are those of the constructors.
template <class Interface, class... Arguments>
class ComponentFactory
{
public:
    using Create = Interface* (*)(Arguments...);
    using Destroy = void (*)(Interface*);
    using Pointer = std::unique_ptr<Interface, Destroy>;

    explicit ComponentFactory(std::string_view kind) : m_kind(kind) {}

    /// A name that is taken stays with the first class: returns false, and logs the name.
    bool add(const char* name, const char* caption, Create create, Destroy destroy)
    {
        const bool isNew = m_entries.try_emplace(name, Entry{caption, create, destroy}).second;
        if (!isNew)
            basalt::logError(m_kind + " \"" + name + "\" is registered already; the first stays");
        return isNew;
    }

    [[nodiscard]] bool knows(std::string_view name) const { return m_entries.contains(name); }

    /// A new component; null, and a line in the log, when nobody registered `name` or its making
    /// throws.
    [[nodiscard]] Pointer make(std::string_view name, Arguments... arguments) const
    {
        const auto found = m_entries.find(name);
        if (found == m_entries.end()) {
            basalt::logWarning("No " + m_kind + " is registered as \"" + std::string(name) + "\"");
            return Pointer(nullptr, nullptr);
        }
        try {
            return Pointer(found->second.create(arguments...), found->second.destroy);
        } catch (const std::exception& fault) {
            basalt::logError(m_kind + " \"" + found->first + "\" cannot be made: " + fault.what());
            return Pointer(nullptr, nullptr);
        }
    }

    /// As `make`, for callers that give the component back with `release`.
    [[nodiscard]] Interface* get(std::string_view name, Arguments... arguments)
    {
        Pointer component = make(name, arguments...);
        if (component)
            m_lent.emplace(component.get(), component.get_deleter());
        return component.release();
    }

    /// Destroys a component that `get` made; ignores null and any other pointer.
    void release(Interface* component)
    {
        const auto found = m_lent.find(component);
        if (found == m_lent.end())
            return;
        const Destroy destroy = found->second;
        m_lent.erase(found);
        destroy(component);
    }

    /// Registered names with their captions, ordered by name.
    [[nodiscard]] std::vector<std::pair<std::string, std::string>> captions() const
    {
        std::vector<std::pair<std::string, std::string>> list;
        for (const auto& [name, entry] : m_entries)
            list.emplace_back(name, entry.caption);
        return list;
    }

private:
    struct Entry
    {
        std::string caption; ///< shown by configuration tools, UTF-8
        Create create;
        Destroy destroy;
    };

    std::string m_kind;
    std::map<std::string, Entry, std::less<>> m_entries;
    std::unordered_map<Interface*, Destroy> m_lent;
};
