#pragma once

#include <optional>

class IDictionary;

/// The smallest of the four spacings of points and lines in the design parameters, in the unit of
/// the coordinates that are made from them. A spacing that is missing counts as 10. Nothing when
/// the dictionary is empty.
[[nodiscard]] std::optional<double> smallestSpacing(const IDictionary& designParameters);
