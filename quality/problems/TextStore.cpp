#include "quality/problems/TextStore.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr std::size_t kBlockBytes = 1 << 16;

} // namespace

void TextStore::swap(TextStore& other) noexcept
{
    std::swap(m_blocks, other.m_blocks);
    std::swap(m_free, other.m_free);
    std::swap(m_left, other.m_left);
    std::swap(m_bytes, other.m_bytes);
    std::swap(m_known, other.m_known);
}

StoredText TextStore::add(std::string_view text)
{
    if (text.empty())
        return {};
    const auto size = static_cast<std::uint32_t>(text.size());
    char* const to = room(sizeof size + text.size());
    std::memcpy(to, &size, sizeof size);
    std::memcpy(to + sizeof size, text.data(), text.size());
    return StoredText(to + sizeof size);
}

StoredText TextStore::intern(std::string_view text)
{
    if (text.empty())
        return {};
    const auto known = m_known.find(text);
    return known != m_known.end() ? *known : *m_known.insert(add(text)).first;
}

void TextStore::take(TextStore&& other)
{
    m_blocks.insert(m_blocks.end() - (m_blocks.empty() ? 0 : 1), // the last one has room
                    std::make_move_iterator(other.m_blocks.begin()),
                    std::make_move_iterator(other.m_blocks.end()));
    if (m_free == nullptr) {
        m_free = other.m_free;
        m_left = other.m_left;
    }
    m_bytes += other.m_bytes;
    m_known.merge(other.m_known);
    other = TextStore();
}

char* TextStore::room(std::size_t size)
{
    if (m_left < size) {
        m_left = std::max(size, kBlockBytes);
        m_blocks.push_back(std::make_unique_for_overwrite<char[]>(m_left));
        m_free = m_blocks.back().get();
        m_bytes += m_left;
    }
    m_left -= size;
    return std::exchange(m_free, m_free + size);
}
