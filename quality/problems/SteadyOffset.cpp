#include "quality/problems/SteadyOffset.h"

#include "quality/problems/Median.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// Of normally distributed values, the standard deviation over the median distance from the middle,
// on a line and on the plane.
constexpr double kSigmaOnLine = 1.4826;
constexpr double kSigmaOnPlane = 1 / 1.1774;

constexpr double kSmallestBandM = 0.05; // what GNSS itself scatters
constexpr double kSigmasInBand = 4;
constexpr double kSigmasOfOffset = 5; // so that the band does not reach 0
constexpr double kLargestSigmaM = 3;  // crude stakes, a crude elevation model
constexpr double kSmallestShare = 0.8;

void judge(SteadyOffset& offset, double lengthM, double sigmaM, const SteadyOffset::Rule& rule)
{
    offset.sigmaM = sigmaM;
    offset.bandM = std::max(kSmallestBandM, kSigmasInBand * sigmaM);
    const double spreadM = std::hypot(sigmaM, rule.spreadM);
    offset.isFound = rule.limitM > 0 && lengthM > rule.limitM &&
                     lengthM > kSigmasOfOffset * spreadM && lengthM > offset.bandM &&
                     sigmaM <= kLargestSigmaM;
}

void setCounts(SteadyOffset& offset, std::size_t count, std::size_t shared)
{
    offset.count = count;
    offset.shared = shared;
    offset.isFound = offset.isFound && offset.isSteady();
}

} // namespace

SteadyOffset SteadyOffset::ofHeights(std::span<const double> heightsM, const Rule& rule)
{
    SteadyOffset offset;
    if (heightsM.size() < std::max<std::size_t>(1, rule.least))
        return offset;
    offset.heightM = medianOf(heightsM);
    std::vector<double> distances;
    for (const double height : heightsM)
        distances.push_back(std::fabs(height - offset.heightM));
    judge(offset, std::fabs(offset.heightM), kSigmaOnLine * medianOf(distances), rule);
    const auto shares = [&](double height) { return offset.sharesHeight(height); };
    setCounts(offset, heightsM.size(),
              static_cast<std::size_t>(std::ranges::count_if(heightsM, shares)));
    return offset;
}

SteadyOffset SteadyOffset::ofPlane(std::span<const double> eastM, std::span<const double> northM,
                                   const Rule& rule)
{
    SteadyOffset offset;
    if (eastM.size() < std::max<std::size_t>(1, rule.least))
        return offset;
    offset.eastM = medianOf(eastM);
    offset.northM = medianOf(northM);
    std::vector<double> distances;
    for (std::size_t i = 0; i < eastM.size(); ++i)
        distances.push_back(std::hypot(eastM[i] - offset.eastM, northM[i] - offset.northM));
    judge(offset, std::hypot(offset.eastM, offset.northM), kSigmaOnPlane * medianOf(distances),
          rule);
    const auto shared =
        std::ranges::count_if(distances, [&](double distance) { return distance <= offset.bandM; });
    setCounts(offset, eastM.size(), static_cast<std::size_t>(shared));
    return offset;
}

bool SteadyOffset::isSteady() const
{
    return count != 0 && static_cast<double>(shared) >= kSmallestShare * static_cast<double>(count);
}

double SteadyOffset::knownM() const
{
    return std::max(kSmallestBandM,
                    bandM / std::sqrt(static_cast<double>(std::max<std::size_t>(1, shared))));
}

bool SteadyOffset::sharesHeight(double differenceM) const
{
    return std::fabs(differenceM - heightM) <= bandM;
}

bool SteadyOffset::sharesPlane(double differenceEastM, double differenceNorthM) const
{
    return std::hypot(differenceEastM - eastM, differenceNorthM - northM) <= bandM;
}
