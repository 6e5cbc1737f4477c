#pragma once

#include "model/PointLines.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The values that a text of the results has most often.
class FrequentValues
{
public:
    /// \param most how many are kept
    FrequentValues(const SurveyPoints& survey, std::string SurveyPoint::*field, std::size_t most);

    /// In the order of their bytes; the empty text is none.
    [[nodiscard]] const std::vector<std::string>& values() const { return m_values; }
    /// How many other values there are.
    [[nodiscard]] std::size_t others() const { return m_others; }
    /// The place of a value; their number for any other text.
    [[nodiscard]] std::size_t placeOf(const std::string& value) const;

private:
    std::vector<std::string> m_values;
    std::size_t m_others = 0;
    std::unordered_map<std::string, std::size_t> m_places;
};
