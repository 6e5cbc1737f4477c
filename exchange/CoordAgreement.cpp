#include "exchange/CoordAgreement.h"

#include <algorithm>
#include <limits>
#include <numbers>
#include <vector>

namespace {

constexpr double kSame = 0.003; // latitudes of 8 decimals are known to 0.6 mm
constexpr double kFollows = 0.01;
constexpr double kShareLeft = 1e-6;        // of differences of kilometres
constexpr std::size_t kMostSampled = 2000; // enough to find the parameters of an exact relation
constexpr std::size_t kFewestForFit = 3;
constexpr int kMostRounds = 10;
constexpr double kNoLimit = std::numeric_limits<double>::infinity(); // nothing was explained

double medianOf(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Faster than `std::hypot`, and no length here is near the limits of a double.
double length(double north, double east)
{
    return std::sqrt(north * north + east * east);
}

/// A shift of the plane with a rotation and a scale about a centre.
struct PlaneFit
{
    double centreNorth = 0;
    double centreEast = 0;
    double north = 0;
    double east = 0;
    double along = 0;  ///< k cos(r) - 1
    double across = 0; ///< k sin(r)

    /// What the fit leaves of a difference.
    [[nodiscard]] double residual(const CoordTriple& stored, const CoordTriple& difference) const
    {
        const double n = stored.first - centreNorth;
        const double e = stored.second - centreEast;
        return length(difference.first - north - along * n + across * e,
                      difference.second - east - across * n - along * e);
    }
};

/// The least-squares fit of some rows; a mere shift where they lie too close together.
PlaneFit fitOf(const CoordPairs& pairs, const std::vector<std::size_t>& rows)
{
    PlaneFit fit;
    const double share = 1.0 / static_cast<double>(rows.size());
    for (const std::size_t row : rows) {
        const CoordTriple difference = pairs.difference(row);
        fit.centreNorth += pairs.stored[row].first * share;
        fit.centreEast += pairs.stored[row].second * share;
        fit.north += difference.first * share;
        fit.east += difference.second * share;
    }
    double squares = 0;
    for (const std::size_t row : rows) {
        const double n = pairs.stored[row].first - fit.centreNorth;
        const double e = pairs.stored[row].second - fit.centreEast;
        const CoordTriple difference = pairs.difference(row);
        const double dn = difference.first - fit.north;
        const double de = difference.second - fit.east;
        squares += n * n + e * e;
        fit.along += n * dn + e * de;
        fit.across += n * de - e * dn;
    }
    if (squares < 1)
        fit.along = fit.across = 0;
    else {
        fit.along /= squares;
        fit.across /= squares;
    }
    return fit;
}

/// The fit that most of the rows follow: those that it does not suit are left out step by step.
PlaneFit robustFit(const CoordPairs& pairs, const std::vector<std::size_t>& sample)
{
    std::vector<std::size_t> kept = sample;
    PlaneFit fit = fitOf(pairs, kept);
    for (int round = 0; round < kMostRounds; ++round) {
        std::vector<double> residuals;
        residuals.reserve(sample.size());
        for (const std::size_t row : sample)
            residuals.push_back(fit.residual(pairs.stored[row], pairs.difference(row)));
        const double most = std::max(3 * medianOf(residuals), kFollows);
        std::vector<std::size_t> next;
        for (std::size_t i = 0; i < sample.size(); ++i) {
            if (residuals[i] <= most)
                next.push_back(sample[i]);
        }
        if (next == kept || next.size() < kFewestForFit)
            break;
        kept = std::move(next);
        fit = fitOf(pairs, kept);
    }
    return fit;
}

/// Counts the rows that follow an explanation.
class Trial
{
public:
    /// \param count of all rows
    /// \param most  that a row may be away
    Trial(std::size_t count, double most) : m_count(count), m_most(most) {}

    void add(double residual)
    {
        if (!(residual <= m_most)) {
            ++m_strangers;
            return;
        }
        m_squares += residual * residual;
    }

    [[nodiscard]] bool hasFailed() const { return m_strangers * 10 > m_count; }
    [[nodiscard]] bool hasStrangers() const { return m_strangers != 0; }
    /// The RMS of what is left of the rows that follow.
    [[nodiscard]] double remains() const
    {
        return std::sqrt(m_squares / static_cast<double>(m_count - m_strangers));
    }

private:
    std::size_t m_count;
    double m_most;
    std::size_t m_strangers = 0;
    double m_squares = 0;
};

/// Finds the simplest explanation of the rows whose differences are numbers.
class Explanation
{
public:
    explicit Explanation(const CoordPairs& pairs) : m_pairs(pairs)
    {
        for (std::size_t row = 0; row < pairs.size(); ++row) {
            const CoordTriple difference = pairs.difference(row);
            if (!isNumber(difference))
                continue;
            widenRanges(length(difference.first, difference.second), difference.third);
            m_rows.push_back(row);
        }
        const std::size_t step = m_rows.size() / kMostSampled + 1;
        for (std::size_t i = 0; i < m_rows.size(); i += step)
            m_sample.push_back(m_rows[i]);
    }

    [[nodiscard]] CoordAgreement agreement() &&
    {
        m_agreement.count = m_rows.size();
        if (!m_rows.empty()) {
            explainPlane();
            explainHeight();
            if (m_hasStrangers)
                findStrangers();
        }
        return m_agreement;
    }

private:
    void widenRanges(double plane, double up)
    {
        CoordAgreement& a = m_agreement;
        const bool isFirst = m_rows.empty();
        a.leastPlane = isFirst ? plane : std::min(a.leastPlane, plane);
        a.largestPlane = isFirst ? plane : std::max(a.largestPlane, plane);
        a.leastUp = isFirst ? up : std::min(a.leastUp, up);
        a.largestUp = isFirst ? up : std::max(a.largestUp, up);
    }

    void explainPlane()
    {
        PlaneFit fit;
        if (explains(CoordAgreement::Plane::Same, fit, kSame))
            return;
        fit.north = medianOfSample([](const CoordTriple& d) { return d.first; });
        fit.east = medianOfSample([](const CoordTriple& d) { return d.second; });
        if (explains(CoordAgreement::Plane::Shift, fit, kFollows))
            return;
        if (m_sample.size() >= kFewestForFit)
            fit = robustFit(m_pairs, m_sample);
        const double most = std::max(kFollows, kShareLeft * m_agreement.largestPlane);
        if (explains(CoordAgreement::Plane::Turned, fit, most))
            return;
        explains(CoordAgreement::Plane::Other, fit, kNoLimit);
    }

    bool explains(CoordAgreement::Plane plane, const PlaneFit& fit, double most)
    {
        Trial trial(m_rows.size(), most);
        for (const std::size_t row : m_rows) {
            trial.add(fit.residual(m_pairs.stored[row], m_pairs.difference(row)));
            if (trial.hasFailed())
                return false;
        }
        CoordAgreement& a = m_agreement;
        a.plane = plane;
        a.north = fit.north;
        a.east = fit.east;
        a.rotationSeconds = std::atan2(fit.across, 1 + fit.along) * 180 / std::numbers::pi * 3600;
        a.scalePpm = (length(1 + fit.along, fit.across) - 1) * 1e6;
        a.remains = trial.remains();
        m_fit = fit;
        m_mostOnPlane = most;
        m_hasStrangers = m_hasStrangers || trial.hasStrangers();
        return true;
    }

    void explainHeight()
    {
        if (explainsHeight(CoordAgreement::Height::Same, 0, kSame))
            return;
        const double up = medianOfSample([](const CoordTriple& d) { return d.third; });
        if (!explainsHeight(CoordAgreement::Height::Shift, up, kFollows))
            m_agreement.height = CoordAgreement::Height::Other;
    }

    bool explainsHeight(CoordAgreement::Height height, double up, double most)
    {
        Trial trial(m_rows.size(), most);
        for (const std::size_t row : m_rows) {
            trial.add(std::abs(m_pairs.difference(row).third - up));
            if (trial.hasFailed())
                return false;
        }
        m_agreement.height = height;
        m_agreement.up = up;
        m_mostUp = most;
        m_hasStrangers = m_hasStrangers || trial.hasStrangers();
        return true;
    }

    void findStrangers()
    {
        for (const std::size_t row : m_rows) {
            const CoordTriple difference = m_pairs.difference(row);
            const double plane = m_fit.residual(m_pairs.stored[row], difference);
            const double up = std::abs(difference.third - m_agreement.up);
            if (plane <= m_mostOnPlane && up <= m_mostUp)
                continue;
            ++m_agreement.strangers;
            const double farthest =
                std::max(plane > m_mostOnPlane ? plane : 0, up > m_mostUp ? up : 0);
            if (farthest > m_agreement.farthest) {
                m_agreement.farthest = farthest;
                m_agreement.farthestRow = row;
            }
        }
    }

    template <class Axis>
    [[nodiscard]] double medianOfSample(Axis axis) const
    {
        std::vector<double> values;
        for (const std::size_t row : m_sample)
            values.push_back(axis(m_pairs.difference(row)));
        return medianOf(std::move(values));
    }

    const CoordPairs& m_pairs;
    std::vector<std::size_t> m_rows;
    std::vector<std::size_t> m_sample;
    CoordAgreement m_agreement;
    PlaneFit m_fit; ///< of the explanation
    double m_mostOnPlane = kNoLimit;
    double m_mostUp = kNoLimit;
    bool m_hasStrangers = false;
};

} // namespace

CoordAgreement coordAgreement(const CoordPairs& pairs)
{
    return Explanation(pairs).agreement();
}
