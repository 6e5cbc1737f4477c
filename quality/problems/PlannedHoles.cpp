#include "quality/problems/PlannedHoles.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFarM = 20000;   ///< farther lines are no neighbours
constexpr double kNextLine = 1.5; ///< distances to the nearest point of another line
constexpr std::size_t kMostNear = 100;

PointPlace middleOf(const NumberGap& gap)
{
    return {(gap.from.eastM + gap.to.eastM) / 2, (gap.from.northM + gap.to.northM) / 2};
}

double halfM(const NumberGap& gap)
{
    return distanceM(gap.from, gap.to) / 2;
}

/// From the middle of a gap to the nearest point of another line, metres; 0 without one.
double distanceToNextLine(const NumberGap& gap, const ListedLine& own, const PointIndex& index)
{
    std::vector<PointIndex::Found> near;
    index.nearest(middleOf(gap), kMostNear, kFarM, near);
    const auto other = std::ranges::find_if(near, [&](const PointIndex::Found& found) {
        return found.number < own.first || found.number >= own.first + own.count;
    });
    return other == near.end() ? 0 : other->distanceM;
}

/// Whether `other` lies beside `gap`, not farther across its line than `acrossM`.
bool isBeside(const NumberGap& gap, const NumberGap& other, double acrossM)
{
    const double lengthM = 2 * halfM(gap);
    if (other.line == gap.line || lengthM == 0)
        return false;
    const PointPlace from = middleOf(gap);
    const PointPlace to = middleOf(other);
    const double east = (gap.to.eastM - gap.from.eastM) / lengthM;
    const double north = (gap.to.northM - gap.from.northM) / lengthM;
    const double along = (to.eastM - from.eastM) * east + (to.northM - from.northM) * north;
    const double across = (to.eastM - from.eastM) * north - (to.northM - from.northM) * east;
    return std::fabs(along) < halfM(gap) + halfM(other) && std::fabs(across) <= acrossM;
}

} // namespace

std::vector<bool> findPlannedHoles(std::span<const NumberGap> gaps,
                                   std::span<const ListedLine> lines, const PointIndex& index)
{
    std::vector<PointPlace> middles;
    double longestM = 0;
    for (const NumberGap& gap : gaps) {
        middles.push_back(middleOf(gap));
        longestM = std::max(longestM, halfM(gap));
    }
    const PointIndex holes(std::move(middles));
    std::vector<bool> arePlanned(gaps.size());
    std::vector<PointIndex::Found> near;
    for (std::size_t i = 0; i < gaps.size(); ++i) {
        const double acrossM = kNextLine * distanceToNextLine(gaps[i], lines[gaps[i].line], index);
        holes.nearest(holes[i], kMostNear, std::hypot(acrossM, halfM(gaps[i]) + longestM), near);
        arePlanned[i] = std::ranges::any_of(near, [&](const PointIndex::Found& found) {
            return isBeside(gaps[i], gaps[found.number], acrossM);
        });
    }
    return arePlanned;
}
