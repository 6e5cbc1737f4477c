#pragma once

#include <vector>

class PlotPanel;

/// The panels of a plot, below each other.
namespace panels {

/// The height of a panel when all have so much together: the same for each canvas; the last one
/// has the x axis as well.
[[nodiscard]] double heightOf(const PlotPanel& panel, const std::vector<PlotPanel*>& all,
                              double height);

/// Lets their canvases begin at the same place.
void align(const std::vector<PlotPanel*>& all);

} // namespace panels
