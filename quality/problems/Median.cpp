#include "quality/problems/Median.h"

#include <algorithm>
#include <limits>
#include <vector>

double medianOf(std::span<const double> values)
{
    std::vector<double> copy(values.begin(), values.end());
    return medianInPlace(copy);
}

double medianInPlace(std::span<double> values)
{
    if (values.empty())
        return std::numeric_limits<double>::quiet_NaN();
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    if (values.size() % 2 != 0)
        return *middle;
    return (*middle + *std::max_element(values.begin(), middle)) / 2;
}
