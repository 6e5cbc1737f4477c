#pragma once

#include "basalt_utilities/IDictionary.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace basalt {

/// The dictionary that everybody owns: a vector of pairs, with a sorted index once it is large.
///
/// `clear` keeps the memory, so that one dictionary can take payload after payload.
class Dictionary final : public IDictionary
{
public:
    Dictionary() = default;
    explicit Dictionary(const IDictionary& other);

    [[nodiscard]] std::optional<std::string_view> find(std::string_view key) const override;
    bool set(std::string_view key, std::string_view value) override;
    bool remove(std::string_view key) override;
    void clear() override;

    [[nodiscard]] std::size_t size() const override { return m_size; }
    [[nodiscard]] std::string_view keyAt(std::size_t index) const override;
    [[nodiscard]] std::string_view valueAt(std::size_t index) const override;

private:
    struct Entry
    {
        std::string key;
        std::string value;
    };

    /// Place in `m_entries`, or `m_size` when there is no such key.
    [[nodiscard]] std::size_t indexOf(std::string_view key) const;
    void rebuildOrder();

    std::vector<Entry> m_entries; ///< the first `m_size` count; the rest is kept for its memory
    std::size_t m_size = 0;
    std::vector<std::uint32_t> m_order; ///< places sorted by key; empty while a scan is cheaper
};

} // namespace basalt

/// An empty dictionary.
[[nodiscard]] std::unique_ptr<IDictionary> dictionary_get_instance();

/// Sets a value; numbers are written as `std::to_chars` writes them, whatever the locale.
void dic_set_value(IDictionary& dictionary, std::string_view key, std::string_view value);
void dic_set_value(IDictionary& dictionary, std::string_view key, int value);
void dic_set_value(IDictionary& dictionary, std::string_view key, double value);

/// Copies every entry of `from` into `to`, over what stands there under the same keys.
void dictionary_copy(const IDictionary& from, IDictionary& to);

/// Copies only the entries named in `keys`, a comma-separated list; missing ones are passed over.
void dictionary_copy(const IDictionary& from, IDictionary& to, std::string_view keys);
