#pragma once

#include "lum_sdk/DatumShift.h"
#include "lum_sdk/ProjHandles.h"

namespace lum {

/// The datum shift from WGS 84 to the datum of a projected system of the EPSG register, as PROJ
/// ranks them for the system's area; none when only a grid, or nothing, leads there.
[[nodiscard]] DatumShift epsgDatumShift(PJ_CONTEXT* context, const PJ* projectedCrs);

} // namespace lum
