#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// Text keys to text values, in the order of insertion.
///
/// Parameter sets, parsed event payloads and database records are all dictionaries. Keys and
/// values are 8-bit text (UTF-8), compared byte for byte. A returned view is valid until the
/// dictionary changes.
class IDictionary
{
public:
    virtual ~IDictionary() = default;

    /// The value of `key`, or nothing when it is missing.
    [[nodiscard]] virtual std::optional<std::string_view> find(std::string_view key) const = 0;

    /// Sets or replaces a value; a replaced key keeps its place.
    /// \returns false when the dictionary can only be read
    virtual bool set(std::string_view key, std::string_view value) = 0;

    /// \returns false when there is no such key
    virtual bool remove(std::string_view key) = 0;
    virtual void clear() = 0;

    [[nodiscard]] virtual std::size_t size() const = 0;
    /// Key and value at `index`, counted in order of insertion, `index < size()`.
    [[nodiscard]] virtual std::string_view keyAt(std::size_t index) const = 0;
    [[nodiscard]] virtual std::string_view valueAt(std::size_t index) const = 0;

    [[nodiscard]] bool contains(std::string_view key) const { return find(key).has_value(); }

    /// The value as text; `fallback` when the key is missing.
    [[nodiscard]] std::string_view text(std::string_view key, std::string_view fallback = {}) const;

    /// The leading number of the value as `parseInteger` and `parseNumber` read it: 0 when the
    /// value does not begin with one, `fallback` only when the key is missing.
    [[nodiscard]] int integer(std::string_view key, int fallback = 0) const;
    [[nodiscard]] double number(std::string_view key, double fallback = 0) const;
};
