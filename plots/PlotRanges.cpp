#include "plots/PlotRanges.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kOutside = 0.02;      // the share of values at each end that may lie far away
constexpr double kOutsideAbove = 0.05; // of those from 0 upward
constexpr double kFar = 3;             // times the width of the others
constexpr double kMarkIsNear = 10;     // likewise, for limits
constexpr double kMarkAboveIsNear = 25;
constexpr double kRoom = 0.06;

QwtInterval atLeast(const QwtInterval& range, double least)
{
    if (range.width() >= least)
        return range;
    const double middle = (range.minValue() + range.maxValue()) / 2;
    return {middle - least / 2, middle + least / 2};
}

/// The values between those that a share of all is below, and one is above.
QwtInterval core(std::vector<double>& values, double below, double above)
{
    const auto lower = values.begin() + std::ptrdiff_t(below * double(values.size()));
    const auto upper = values.end() - 1 - std::ptrdiff_t(above * double(values.size()));
    std::nth_element(values.begin(), lower, values.end());
    const double least = *lower; // the next line moves it
    std::nth_element(lower, upper, values.end());
    return {least, *upper};
}

QwtInterval withMarks(QwtInterval range, std::initializer_list<double> marks, double nearness)
{
    const double near = nearness * range.width();
    for (const double mark : marks) {
        if (std::isfinite(mark) && mark > range.minValue() - near && mark < range.maxValue() + near)
            range = range.extend(mark);
    }
    return range;
}

/// What is to be seen of values.
struct Wish
{
    double below;    ///< the share that may lie far below the others
    double above;    ///< likewise above
    double nearness; ///< of limits that are seen as well, times the width of the values
};

PlotRanges rangesWith(std::vector<double> values, std::initializer_list<double> marks, double least,
                      const Wish& wish)
{
    std::erase_if(values, [](double value) { return !isShown(value); });
    if (values.empty()) {
        const QwtInterval none = widened(withMarks({-least, least}, marks, wish.nearness), kRoom);
        return {none, none};
    }
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    QwtInterval all = atLeast({*lowest, *highest}, least);
    QwtInterval usual = atLeast(core(values, wish.below, wish.above), least);
    if (all.width() <= kFar * usual.width())
        usual = all;
    usual = withMarks(usual, marks, wish.nearness);
    all = withMarks(all | usual, marks, wish.nearness);
    return {widened(usual, kRoom), widened(all, kRoom)};
}

} // namespace

bool isShown(double value)
{
    return std::fabs(value) <= kLargestShown;
}

QwtInterval widened(const QwtInterval& range, double share)
{
    const double room = range.width() * share;
    return {range.minValue() - room, range.maxValue() + room};
}

PlotRanges rangesOf(std::vector<double> values, std::initializer_list<double> marks, double least)
{
    return rangesWith(std::move(values), marks, least, {kOutside, kOutside, kMarkIsNear});
}

PlotRanges rangesFromZero(std::vector<double> values, std::initializer_list<double> marks,
                          double least)
{
    values.push_back(0);
    PlotRanges ranges =
        rangesWith(std::move(values), marks, least, {0, kOutsideAbove, kMarkAboveIsNear});
    ranges.usual.setMinValue(0);
    ranges.all.setMinValue(0);
    return ranges;
}
