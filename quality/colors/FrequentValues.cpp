#include "quality/colors/FrequentValues.h"

#include <algorithm>
#include <utility>

namespace {

using Counted = std::pair<std::string_view, std::size_t>;

/// The values with their numbers. Neighbours mostly have the same one.
std::vector<Counted> counted(const SurveyPoints& survey, std::string SurveyPoint::*field)
{
    std::unordered_map<std::string_view, std::size_t> counts;
    std::size_t* count = nullptr;
    std::string_view last;
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint& point : line) {
            const std::string_view value = point.*field;
            if (value.empty())
                continue;
            if (count == nullptr || value != last) {
                count = &counts[value]; // stays where it is when others come
                last = value;
            }
            ++*count;
        }
    }
    return {counts.begin(), counts.end()};
}

} // namespace

FrequentValues::FrequentValues(const SurveyPoints& survey, std::string SurveyPoint::*field,
                               std::size_t most)
{
    std::vector<Counted> all = counted(survey, field);
    std::sort(all.begin(), all.end(), [](const Counted& a, const Counted& b) {
        return std::pair(b.second, a.first) < std::pair(a.second, b.first);
    });
    const std::size_t kept = std::min(most, all.size());
    m_others = all.size() - kept;
    for (std::size_t i = 0; i < kept; ++i)
        m_values.emplace_back(all[i].first);
    std::sort(m_values.begin(), m_values.end());
    for (std::size_t i = 0; i < kept; ++i)
        m_places.emplace(m_values[i], i);
}

std::size_t FrequentValues::placeOf(const std::string& value) const
{
    const auto found = m_places.find(value);
    return found == m_places.end() ? m_values.size() : found->second;
}
