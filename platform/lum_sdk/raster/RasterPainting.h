#pragma once

#include "lum_sdk/raster/RasterPlace.h"
#include "lum_sdk/raster/RasterView.h"

#include <QImage>

class QPainter;

namespace lum {

/// Names a block of a raster.
struct RasterBlockId
{
    std::size_t level = 0;
    int column = 0;
    int row = 0;

    friend bool operator==(const RasterBlockId&, const RasterBlockId&) = default;
};

/// Where the painting gets its blocks from.
class IRasterBlocks
{
public:
    virtual ~IRasterBlocks() = default;

    /// The blocks that a picture needs, nearest to its centre first. Told once, before any of them
    /// is asked for; those of an earlier picture are no longer wanted.
    virtual void want(const std::vector<RasterBlockId>& /*ids*/) {}

    /// A block that the picture needs. Asked once for each, in the order of `want`, until the view
    /// is cancelled.
    /// \returns null when it is not there yet; a block that will never come is transparent instead
    [[nodiscard]] virtual QImage block(const RasterBlockId& id) = 0;

    /// A coarser block to show instead of a missing one, only when it costs next to nothing. Asked
    /// by one of two threads at a time.
    [[nodiscard]] virtual QImage substitute(const RasterBlockId& id) = 0;
};

/// How much of a raster was painted.
enum class RasterPainted
{
    Everything,
    SomeMissing, ///< a coarser version, or nothing, stands where blocks are missing
    Nothing,     ///< cancelled
};

/// Paints a raster, one square of `mapScreen` after the other. Each takes the level that has about
/// a pixel for each device pixel. Pixels are mixed bilinearly, except where they fall one to one,
/// and from twice their size on, where single pixels are seen.
/// \param painter  in screen pixels, as a layer gets it
/// \param opacity  0 to 1
RasterPainted paintRaster(const RasterView& view, const RasterPlace& place, IRasterBlocks& blocks,
                          QPainter& painter, double opacity = 1);

} // namespace lum
