#include "quality/statistics/Moments.h"

#include <algorithm>
#include <numbers>

namespace statistics {

double Moments::standardDeviation() const
{
    return m_count < 2 ? kUnknown : std::sqrt(m_squares / static_cast<double>(m_count - 1));
}

double Moments::rms() const
{
    const double mean = m_first + m_mean;
    return known(std::sqrt(mean * mean + m_squares / static_cast<double>(m_count)));
}

double percentile95(std::span<double> values)
{
    if (values.empty())
        return kUnknown;
    const std::size_t rank = (values.size() * 95 + 99) / 100; // rounded up, exactly
    const auto found = values.begin() + static_cast<std::ptrdiff_t>(rank - 1);
    std::nth_element(values.begin(), found, values.end());
    return *found;
}

bool hasShift(const Moments& differences)
{
    constexpr double kSmallestM = 0.02;
    constexpr double kDeviations = 3;
    const double mean = std::fabs(differences.mean());
    const double spread =
        differences.standardDeviation() / std::sqrt(static_cast<double>(differences.count()));
    return mean > kDeviations * spread && mean > kSmallestM; // false of unknown figures
}

double precisionOfOne(const Moments& differences)
{
    return differences.rms() / std::numbers::sqrt2;
}

double shareOf(std::size_t part, std::size_t whole)
{
    return whole == 0 ? kUnknown : static_cast<double>(part) / static_cast<double>(whole);
}

} // namespace statistics
