#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace lum {

/// One resolution of a raster, cut into blocks. Those at the right and lower edge may be smaller.
struct RasterLevel
{
    QSize size;           ///< pixels
    QSize block;          ///< pixels; a block is read and kept as a whole
    bool isStored = true; ///< false: thinned out while reading, slow for a large file

    /// The number of blocks across and down.
    [[nodiscard]] QSize blockCount() const
    {
        return {(size.width() + block.width() - 1) / block.width(),
                (size.height() + block.height() - 1) / block.height()};
    }
    /// The pixels of a block.
    [[nodiscard]] QRect blockArea(int column, int row) const
    {
        const QPoint corner(column * block.width(), row * block.height());
        return QRect(corner, block) & QRect(QPoint(0, 0), size);
    }

    friend bool operator==(const RasterLevel&, const RasterLevel&) = default;
};

struct RasterBand
{
    QString meaning; ///< "Red", "Gray", "Palette", ..., as the library calls it
    QString type;    ///< "Byte", "UInt16", "Float32", ...
    std::optional<double> noData;
};

/// What a raster is, read once when it is opened. A value, for any thread.
struct RasterInfo
{
    QString format; ///< "GeoTIFF", "MBTiles", ...
    QSize size;     ///< of the full resolution, pixels
    /// From the finest, which is the full resolution, to the coarsest; never empty. The coarsest is
    /// stored, or so small that it fits one block.
    std::vector<RasterLevel> levels;
    std::vector<RasterBand> bands;

    /// Whether the raster says where it lies. Without, `toCoordinates` means nothing.
    bool isPlaced = false;
    /// From pixels (x to the right, y down, (0, 0) the outer corner of the first) to the
    /// coordinates of its system: X = t[0] + t[1] x + t[2] y, Y = t[3] + t[4] x + t[5] y; X is
    /// easting or longitude.
    std::array<double, 6> toCoordinates{0, 1, 0, 0, 0, 1};
    std::string wkt;    ///< of the coordinate system; empty when the raster names none
    QString systemName; ///< "WGS 84 / UTM zone 50N"; empty without a system

    /// Whether it is so large without overviews that showing all of it takes seconds.
    [[nodiscard]] bool lacksOverviews() const;
};

} // namespace lum
