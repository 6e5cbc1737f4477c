#include "quality/problems/LineOrder.h"

#include <algorithm>
#include <cmath>
#include <limits>

NumberParts numberParts(std::string_view pointNumber)
{
    constexpr std::size_t kMostDigits = 15; // that a double holds
    std::size_t start = pointNumber.size();
    double number = 0;
    double unit = 1;
    bool hasFraction = false;
    for (std::size_t digits = 0; start > 0 && digits < kMostDigits; --start) {
        const char c = pointNumber[start - 1];
        if (c >= '0' && c <= '9') {
            number += (c - '0') * unit;
            unit *= 10;
            ++digits;
        } else if (c == '.' && !hasFraction && digits > 0) {
            hasFraction = true;
            number /= unit;
            unit = 1;
        } else {
            break;
        }
    }
    const std::string_view prefix = pointNumber.substr(0, start);
    if (start == pointNumber.size())
        return {prefix, std::numeric_limits<double>::quiet_NaN()};
    return {prefix, number};
}

void LineOrder::add(std::string_view pointNumber, const LinePoint& shape, std::size_t listed)
{
    const NumberParts parts = numberParts(pointNumber);
    if (std::isnan(parts.number) || !isOnMap(shape.place))
        return;
    m_entries.push_back({parts, shape, listed});
    m_entries.back().shape.number = parts.number;
}

void LineOrder::forEachRun(const Examine& examine)
{
    if (!std::ranges::is_sorted(m_entries, {}, &Entry::parts))
        std::ranges::stable_sort(m_entries, {}, &Entry::parts);
    for (auto first = m_entries.begin(); first != m_entries.end();) {
        m_line.clear();
        m_listed.clear();
        const std::string_view prefix = first->parts.prefix;
        for (; first != m_entries.end() && first->parts.prefix == prefix; ++first) {
            m_line.push_back(first->shape);
            m_listed.push_back(first->listed);
        }
        examine(m_line, m_listed);
    }
}
