#include "basalt_utilities/Dictionary.h"

#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"

#include <algorithm>
#include <numeric>

namespace basalt {

namespace {
// Up to so many keys a scan over them is quicker than a binary search.
constexpr std::size_t kScanLimit = 24;
} // namespace

Dictionary::Dictionary(const IDictionary& other)
{
    dictionary_copy(other, *this);
}

std::optional<std::string_view> Dictionary::find(std::string_view key) const
{
    const std::size_t index = indexOf(key);
    if (index == m_size)
        return std::nullopt;
    return std::string_view(m_entries[index].value);
}

bool Dictionary::set(std::string_view key, std::string_view value)
{
    if (const std::size_t index = indexOf(key); index != m_size) {
        m_entries[index].value.assign(value);
        return true;
    }
    if (m_size == m_entries.size()) {
        if (m_entries.empty())
            m_entries.reserve(4); // the few pairs of a payload need one allocation
        m_entries.emplace_back();
    }
    m_entries[m_size].key.assign(key);
    m_entries[m_size].value.assign(value);
    ++m_size;
    if (!m_order.empty()) {
        const auto place = std::lower_bound(
            m_order.begin(), m_order.end(), key,
            [this](std::uint32_t i, std::string_view k) { return m_entries[i].key < k; });
        m_order.insert(place, static_cast<std::uint32_t>(m_size - 1));
    } else if (m_size > kScanLimit) {
        rebuildOrder();
    }
    return true;
}

bool Dictionary::remove(std::string_view key)
{
    const std::size_t index = indexOf(key);
    if (index == m_size)
        return false;
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
    --m_size;
    if (!m_order.empty())
        rebuildOrder();
    return true;
}

void Dictionary::clear()
{
    m_size = 0;
    m_order.clear();
}

std::string_view Dictionary::keyAt(std::size_t index) const
{
    return m_entries[index].key;
}

std::string_view Dictionary::valueAt(std::size_t index) const
{
    return m_entries[index].value;
}

std::size_t Dictionary::indexOf(std::string_view key) const
{
    if (m_order.empty()) {
        for (std::size_t i = 0; i < m_size; ++i) {
            if (m_entries[i].key == key)
                return i;
        }
        return m_size;
    }
    const auto place = std::lower_bound(
        m_order.begin(), m_order.end(), key,
        [this](std::uint32_t i, std::string_view k) { return m_entries[i].key < k; });
    return place != m_order.end() && m_entries[*place].key == key ? *place : m_size;
}

void Dictionary::rebuildOrder()
{
    m_order.resize(m_size);
    std::iota(m_order.begin(), m_order.end(), 0U);
    std::sort(m_order.begin(), m_order.end(), [this](std::uint32_t a, std::uint32_t b) {
        return m_entries[a].key < m_entries[b].key;
    });
}

} // namespace basalt

std::unique_ptr<IDictionary> dictionary_get_instance()
{
    return std::make_unique<basalt::Dictionary>();
}

void dic_set_value(IDictionary& dictionary, std::string_view key, std::string_view value)
{
    dictionary.set(key, value);
}

void dic_set_value(IDictionary& dictionary, std::string_view key, int value)
{
    dictionary.set(key, std::to_string(value));
}

void dic_set_value(IDictionary& dictionary, std::string_view key, double value)
{
    dictionary.set(key, basalt::formatShortest(value));
}

void dictionary_copy(const IDictionary& from, IDictionary& to)
{
    if (&from == &to)
        return;
    for (std::size_t i = 0; i < from.size(); ++i)
        to.set(from.keyAt(i), from.valueAt(i));
}

void dictionary_copy(const IDictionary& from, IDictionary& to, std::string_view keys)
{
    if (&from == &to)
        return;
    while (!keys.empty()) {
        const std::string_view key = next_word3(keys, ',');
        if (const auto value = from.find(key); value && !key.empty())
            to.set(key, *value);
    }
}

bool dictionary_same(const IDictionary& first, const IDictionary& second)
{
    bool isSame = first.size() == second.size();
    for (std::size_t i = 0; isSame && i < first.size(); ++i)
        isSame = second.find(first.keyAt(i)) == first.valueAt(i);
    return isSame;
}
