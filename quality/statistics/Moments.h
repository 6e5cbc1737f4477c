#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

namespace statistics {

/// What a figure is that cannot be told: the mean of nothing. Shown as a blank.
inline constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

/// The figures of values that come one by one. No digits are lost when the mean is large and the
/// spread small (Welford, Technometrics 4, 1962). A value that is not a finite number is left out
/// and counted. Every figure of too few values is `kUnknown`.
class Moments
{
public:
    /// \param place what `largestPlace` shall tell of this value, such as its number in a list
    void add(double value, std::size_t place = 0)
    {
        if (!std::isfinite(value)) {
            ++m_leftOut;
            return;
        }
        if (m_count++ == 0)
            m_first = value;
        const double fromFirst = value - m_first;
        const double fromMean = fromFirst - m_mean;
        m_mean += fromMean / static_cast<double>(m_count);
        m_squares += fromMean * (fromFirst - m_mean);
        m_minimum = value < m_minimum ? value : m_minimum;
        m_maximum = value > m_maximum ? value : m_maximum;
        if (std::fabs(value) > std::fabs(m_largest) || m_count == 1) {
            m_largest = value;
            m_largestPlace = place;
        }
    }

    [[nodiscard]] std::size_t count() const { return m_count; }
    [[nodiscard]] std::size_t leftOut() const { return m_leftOut; }
    [[nodiscard]] double mean() const { return known(m_first + m_mean); }
    /// Of a sample, with n - 1; known of two values and more.
    [[nodiscard]] double standardDeviation() const;
    /// The square root of the mean of the squares, with n.
    [[nodiscard]] double rms() const;
    [[nodiscard]] double minimum() const { return known(m_minimum); }
    [[nodiscard]] double maximum() const { return known(m_maximum); }
    /// The value, with its sign, that is farthest from 0; the first of equal ones.
    [[nodiscard]] double largest() const { return known(m_largest); }
    /// The place of `largest`; 0 when there is no value.
    [[nodiscard]] std::size_t largestPlace() const { return m_largestPlace; }

private:
    [[nodiscard]] double known(double value) const { return m_count == 0 ? kUnknown : value; }

    std::size_t m_count = 0;
    std::size_t m_leftOut = 0;
    double m_first = 0;
    double m_mean = 0;    ///< from the first value, so that it has the digits of the spread
    double m_squares = 0; ///< the sum of the squares of the distances from the mean
    double m_minimum = std::numeric_limits<double>::infinity();
    double m_maximum = -std::numeric_limits<double>::infinity();
    double m_largest = 0;
    std::size_t m_largestPlace = 0;
};

/// The smallest value that at least 95 % of the values do not exceed: by nearest rank, the value of
/// number ceil(0.95 n), counted from 1. `kUnknown` of no values.
/// \param values finite; their order changes
[[nodiscard]] double percentile95(std::span<double> values);

/// Whether the mean tells of a constant shift, such as that of a wrong base position or pole
/// height: it is farther from 0 than 3 standard deviations / sqrt(n), and than 0.02.
/// \param differences metres
[[nodiscard]] bool hasShift(const Moments& differences);

/// The precision of a single measurement, from the differences of equal pairs: RMS / sqrt(2).
[[nodiscard]] double precisionOfOne(const Moments& differences);

/// `part` of `whole`, from 0 to 1; `kUnknown` when `whole` is 0.
[[nodiscard]] double shareOf(std::size_t part, std::size_t whole);

} // namespace statistics
