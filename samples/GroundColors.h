#pragma once

#include "samples/Grid.h"

#include <cstdint>
#include <vector>

namespace demo {

struct GroundColor
{
    double red = 0; ///< each from 0 to 255
    double green = 0;
    double blue = 0;
};

/// A rectangle of the survey's coordinate system that is cut into pixels.
struct GroundRaster
{
    PlanePlace upperLeft;
    double pixelM = 2;
    int columns = 0;
    int rows = 0;

    /// The middle of a pixel.
    [[nodiscard]] PlanePlace at(int column, int row) const
    {
        return {upperLeft.north - (row + 0.5) * pixelM, upperLeft.east + (column + 0.5) * pixelM};
    }
};

/// What an aeroplane sees of the ground: fields and woods on the hills, lit from the north-west,
/// the river, the houses of the village and two roads. River and houses are those of `obstacleAt`.
/// \returns red, green and blue of each pixel, row by row from the upper left
[[nodiscard]] std::vector<std::uint8_t> groundColors(const GroundRaster& raster);

} // namespace demo
