#pragma once

#include <optional>

class IDictionary;

/// The smallest spacing of points or lines that the design parameters name, metres; 10 for what
/// they leave out. Nothing where there are no parameters at all.
[[nodiscard]] std::optional<double> smallestSpacingM(const IDictionary& designParameters);
