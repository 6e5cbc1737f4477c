#pragma once

#include "lum_desktop_sdkx/ILayerViewer.h"
#include "lum_sdk/raster/RasterView.h"

/// The view for a raster that a layer paints.
[[nodiscard]] inline lum::RasterView rasterViewOf(const PaintTarget& target)
{
    return {target.transform, target.pixelRatio, target.system, target.cancelled, target.deadline};
}
