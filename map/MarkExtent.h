#pragma once

#include "map/Bounds.h"
#include "map/ToMap.h"

/// The map rectangle of marks on the grid, its "top" the smallest northing: from the mapped
/// minimum corner to the mapped maximum corner. Around nothing it stands at the grid's origin; a
/// side of less than 1e-7 becomes 10 long.
/// \param grid x is northing, y is easting
[[nodiscard]] QRectF markExtent(const Bounds& grid, const ToMap& toMap);
