#pragma once

#include "basalt_utilities/IDictionary.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace basalt {

/// The usual dictionary: a vector of pairs, with an index sorted by key once there are many.
///
/// `clear` keeps the memory: a dictionary that reads many payloads allocates for the first only.
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

    /// The index in `m_entries`, or `m_size` when there is no such key.
    [[nodiscard]] std::size_t indexOf(std::string_view key) const;
    void rebuildOrder();

    std::vector<Entry> m_entries; ///< the first `m_size` count; the rest is kept for its memory
    std::size_t m_size = 0;
    std::vector<std::uint32_t> m_order; ///< indices sorted by key; empty while a scan is quicker
};

} // namespace basalt

/// An empty dictionary.
[[nodiscard]] std::unique_ptr<IDictionary> dictionary_get_instance();

/// Sets a value. A number becomes the shortest text that reads back as the same number, in any
/// locale.
void dic_set_value(IDictionary& dictionary, std::string_view key, std::string_view value);
void dic_set_value(IDictionary& dictionary, std::string_view key, int value);
void dic_set_value(IDictionary& dictionary, std::string_view key, double value);

/// Copies every entry of `from` into `to`; an entry of the same key is replaced.
void dictionary_copy(const IDictionary& from, IDictionary& to);

/// Copies only the entries named in `keys`, a comma-separated list; missing ones are skipped.
void dictionary_copy(const IDictionary& from, IDictionary& to, std::string_view keys);

/// Whether both hold the same entries, in whatever order.
[[nodiscard]] bool dictionary_same(const IDictionary& first, const IDictionary& second);
