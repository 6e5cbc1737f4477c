#pragma once

#include "lum_sdk/raster/RasterPlace.h"
#include "lum_sdk/raster/RasterView.h"

#include <array>
#include <vector>

namespace lum {

/// A square of the picture with its place in the raster, exact to half a device pixel when the four
/// corners are joined bilinearly.
struct MappedCell
{
    QRect area; ///< device pixels
    /// Where the corners of the area lie: upper left, upper right, lower left, lower right; pixels
    /// of the full resolution.
    std::array<QPointF, 4> corners;
    /// Raster pixels to a device pixel, the root of how their areas relate.
    double step = 0;

    /// The place in the raster of a point of the area, device pixels.
    [[nodiscard]] QPointF at(double x, double y) const;
    /// The rectangle around the corners.
    [[nodiscard]] QRectF footprint() const;
};

/// The parts of a picture that a raster covers, as squares of at most 64 pixels.
///
/// The corners of a square, the middles of its sides and its centre are transformed exactly. Where
/// the way is all but straight this is done for 512 pixels at once. A square that is not exact
/// enough is quartered, down to single pixels: near the poles, along the date line, at the edge of
/// a projection. Squares without an answer, and those beside the raster, are left out. A cancelled
/// view gives what was found until then.
[[nodiscard]] std::vector<MappedCell> mapScreen(const RasterView& view, const RasterPlace& place);

} // namespace lum
