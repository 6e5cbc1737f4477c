#pragma once

#include <span>

/// Of no values NaN, of an even number the mean of the middle two.
[[nodiscard]] double medianOf(std::span<const double> values);
/// The same, without a copy: changes their order.
[[nodiscard]] double medianInPlace(std::span<double> values);
