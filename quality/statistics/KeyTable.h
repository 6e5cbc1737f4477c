#pragma once

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <unordered_map>
#include <vector>

namespace statistics {

/// Gives each different value a number, in the order in which they come. The next value is mostly
/// the last one again, which costs one comparison.
template <class Value>
class KeyTable
{
public:
    [[nodiscard]] std::uint32_t placeOf(const Value& value)
    {
        if (!m_values.empty() && value == m_values[m_last])
            return m_last;
        const auto [found, isNew] =
            m_places.try_emplace(value, static_cast<std::uint32_t>(m_values.size()));
        if (isNew)
            m_values.push_back(value);
        return m_last = found->second;
    }

    /// Puts the values in ascending order; `placeOf` is not called after it.
    /// \returns for each former place the one it has now
    [[nodiscard]] std::vector<std::uint32_t> sort()
    {
        std::vector<std::uint32_t> former(m_values.size());
        std::iota(former.begin(), former.end(), 0U);
        std::sort(former.begin(), former.end(),
                  [this](std::uint32_t a, std::uint32_t b) { return m_values[a] < m_values[b]; });
        std::vector<std::uint32_t> now(former.size());
        for (std::uint32_t place = 0; place < former.size(); ++place)
            now[former[place]] = place;
        std::sort(m_values.begin(), m_values.end());
        return now;
    }

    [[nodiscard]] const std::vector<Value>& values() const { return m_values; }

private:
    std::vector<Value> m_values;
    std::unordered_map<Value, std::uint32_t> m_places;
    std::uint32_t m_last = 0;
};

} // namespace statistics
