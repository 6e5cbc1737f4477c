#pragma once

#include "map/Bounds.h"
#include "map/ToMap.h"

/// The map rectangle around marks, from the mapped minimum corner to the mapped maximum corner: its
/// `top()` is the smallest northing. Without marks it stands at the grid's origin. A side shorter
/// than 1e-7 becomes 10 long.
/// \param grid bounds of the marks; x is northing, y is easting
[[nodiscard]] QRectF markExtent(const Bounds& grid, const ToMap& toMap);
