#pragma once

#include <optional>

class IDictionary;

/// The smallest of the four spacings of points and lines in the design parameters, metres. A
/// spacing that is missing counts as 10. Nothing when the dictionary is empty.
[[nodiscard]] std::optional<double> smallestSpacingM(const IDictionary& designParameters);
