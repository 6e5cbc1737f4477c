#include "exchange/CoordDifferences.h"

#include <limits>

namespace {

/// The sums of one axis. The squares are those about a value near the mean, so that large
/// differences that are almost alike lose no digits.
class AxisSums
{
public:
    void add(double difference, std::size_t row)
    {
        if (m_count == 0)
            m_base = difference;
        const double above = difference - m_base;
        m_sum += above;
        m_squares += above * above;
        if (m_count == 0 || std::abs(difference) > std::abs(m_largest)) {
            m_largest = difference;
            m_largestRow = row;
        }
        ++m_count;
    }

    [[nodiscard]] AxisFigures figures() const
    {
        if (m_count == 0)
            return {};
        const auto count = static_cast<double>(m_count);
        const double above = m_sum / count;
        const double scatter = std::max(0.0, m_squares - above * m_sum);
        const double mean = m_base + above;
        return {mean,
                m_count > 1 ? std::sqrt(scatter / (count - 1))
                            : std::numeric_limits<double>::quiet_NaN(),
                std::sqrt(mean * mean + scatter / count), m_largest, m_largestRow};
    }

private:
    std::size_t m_count = 0;
    double m_base = 0;
    double m_sum = 0;
    double m_squares = 0;
    double m_largest = 0;
    std::size_t m_largestRow = 0;
};

} // namespace

DifferenceFigures differenceFigures(const CoordPairs& pairs)
{
    DifferenceFigures figures;
    AxisSums north;
    AxisSums east;
    AxisSums height;
    for (std::size_t row = 0; row < pairs.size(); ++row) {
        const CoordTriple difference = pairs.difference(row);
        if (!isNumber(difference))
            continue;
        ++figures.count;
        north.add(difference.first, row);
        east.add(difference.second, row);
        height.add(difference.third, row);
    }
    figures.north = north.figures();
    figures.east = east.figures();
    figures.height = height.figures();
    return figures;
}
