#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <unordered_set>
#include <vector>

/// A text that lies in a `TextStore`, and lives as long as that. It takes the room of a pointer.
class StoredText
{
public:
    StoredText() = default;

    [[nodiscard]] std::string_view view() const
    {
        if (m_bytes == nullptr)
            return {};
        std::uint32_t size = 0;
        std::memcpy(&size, m_bytes - sizeof size, sizeof size);
        return {m_bytes, size};
    }
    operator std::string_view() const { return view(); } // NOLINT: it is one
    [[nodiscard]] bool empty() const { return m_bytes == nullptr; }

    friend bool operator==(StoredText a, StoredText b) { return a.view() == b.view(); }
    friend bool operator==(StoredText a, std::string_view b) { return a.view() == b; }

private:
    friend class TextStore;
    explicit StoredText(const char* bytes) : m_bytes(bytes) {}

    const char* m_bytes = nullptr; ///< behind their number; null for the empty text
};

/// Keeps many short texts in few blocks of memory. A text stays where it is until the store that
/// holds it ends, also when stores are moved or taken over.
class TextStore
{
public:
    TextStore() = default;
    TextStore(TextStore&& other) noexcept { swap(other); }
    TextStore& operator=(TextStore other) noexcept
    {
        swap(other);
        return *this;
    }
    TextStore(const TextStore&) = delete;
    ~TextStore() = default;
    void swap(TextStore& other) noexcept;

    [[nodiscard]] StoredText add(std::string_view text);
    /// For texts that come again and again: equal ones take the room of one.
    [[nodiscard]] StoredText intern(std::string_view text);
    /// Takes over the texts of another store, which is empty then.
    void take(TextStore&& other);

    [[nodiscard]] std::size_t bytes() const { return m_bytes; } ///< of memory

private:
    struct Hash
    {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const
        {
            return std::hash<std::string_view>()(text);
        }
    };
    struct Same
    {
        using is_transparent = void;
        bool operator()(std::string_view a, std::string_view b) const { return a == b; }
    };

    [[nodiscard]] char* room(std::size_t size);

    std::vector<std::unique_ptr<char[]>> m_blocks;
    char* m_free = nullptr;
    std::size_t m_left = 0; ///< in the last block
    std::size_t m_bytes = 0;
    std::unordered_set<StoredText, Hash, Same> m_known;
};
