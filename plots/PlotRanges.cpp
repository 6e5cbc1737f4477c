#include "plots/PlotRanges.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kOutside = 0.02;  // the share of values at each end that may lie far away
constexpr double kFar = 3;         // times the width of the others
constexpr double kMarkIsNear = 10; // likewise, for limits
constexpr double kRoom = 0.06;

QwtInterval atLeast(const QwtInterval& range, double least)
{
    if (range.width() >= least)
        return range;
    const double middle = (range.minValue() + range.maxValue()) / 2;
    return {middle - least / 2, middle + least / 2};
}

/// The values between those that `kOutside` of all are below and above.
QwtInterval core(std::vector<double>& values)
{
    const auto outside = std::ptrdiff_t(kOutside * double(values.size()));
    const auto lower = values.begin() + outside;
    const auto upper = values.end() - 1 - outside;
    std::nth_element(values.begin(), lower, values.end());
    std::nth_element(lower, upper, values.end());
    return {*lower, *upper};
}

QwtInterval withMarks(QwtInterval range, std::initializer_list<double> marks)
{
    const double near = kMarkIsNear * range.width();
    for (const double mark : marks) {
        if (std::isfinite(mark) && mark > range.minValue() - near && mark < range.maxValue() + near)
            range = range.extend(mark);
    }
    return range;
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
    std::erase_if(values, [](double value) { return !isShown(value); });
    if (values.empty()) {
        const QwtInterval none = widened(withMarks({-least, least}, marks), kRoom);
        return {none, none};
    }
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    QwtInterval all = atLeast({*lowest, *highest}, least);
    QwtInterval usual = atLeast(core(values), least);
    if (all.width() <= kFar * usual.width())
        usual = all;
    usual = withMarks(usual, marks);
    all = withMarks(all | usual, marks);
    return {widened(usual, kRoom), widened(all, kRoom)};
}

PlotRanges rangesFromZero(std::vector<double> values, std::initializer_list<double> marks,
                          double least)
{
    values.push_back(0);
    PlotRanges ranges = rangesOf(std::move(values), marks, least);
    ranges.usual.setMinValue(0);
    ranges.all.setMinValue(0);
    return ranges;
}
