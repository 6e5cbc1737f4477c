#pragma once

#include "quality/statistics/Moments.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace statistics {

/// Mean and range of values of which no spread is asked, such as accuracies. A value that is not a
/// finite number is left out and counted. Every figure of no values is `kUnknown`.
class Average
{
public:
    void add(double value)
    {
        if (!std::isfinite(value)) {
            ++m_leftOut;
            return;
        }
        ++m_count;
        m_sum += value;
        m_minimum = std::min(m_minimum, value);
        m_maximum = std::max(m_maximum, value);
    }

    [[nodiscard]] std::size_t count() const { return m_count; }
    [[nodiscard]] std::size_t leftOut() const { return m_leftOut; }
    [[nodiscard]] double mean() const { return known(m_sum / static_cast<double>(m_count)); }
    [[nodiscard]] double minimum() const { return known(m_minimum); }
    [[nodiscard]] double maximum() const { return known(m_maximum); }

private:
    [[nodiscard]] double known(double value) const { return m_count == 0 ? kUnknown : value; }

    std::size_t m_count = 0;
    std::size_t m_leftOut = 0;
    double m_sum = 0;
    double m_minimum = std::numeric_limits<double>::infinity();
    double m_maximum = -std::numeric_limits<double>::infinity();
};

} // namespace statistics
