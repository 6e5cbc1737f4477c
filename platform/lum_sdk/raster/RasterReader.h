#pragma once

#include "lum_sdk/raster/RasterColors.h"
#include "lum_sdk/raster/RasterLevels.h"
#include "lum_sdk/raster/RasterSource.h"

#include <gdal.h>

namespace lum {

/// Reads the blocks of a data set and colours them.
class RasterReader
{
public:
    RasterReader() = default;
    /// \param levels  outlives this object
    RasterReader(GDALDatasetH dataset, const RasterLevels& levels);

    /// \returns null when it cannot be read, or `stop` ended it
    [[nodiscard]] QImage read(std::size_t level, const QRect& area, const RasterStop& stop);

private:
    /// A band that is shown.
    struct Band
    {
        int number = 1;
        bool isByte = true; ///< its values are shown as they are
        NoData noData;
        std::optional<Stretch> stretch; ///< known from the first block on, when `isByte` is not set
    };
    struct Piece
    {
        std::size_t level = 0;
        QRect area;
        const RasterStop* stop = nullptr;
    };

    void chooseBands(GDALDatasetH dataset);
    [[nodiscard]] Band describe(GDALRasterBandH band, int number) const;
    void choosePalette(GDALRasterBandH band);

    /// The same as `readColors` for what is plain, in one go.
    [[nodiscard]] QImage readWhole(const Piece& piece);
    [[nodiscard]] QImage readColors(const Piece& piece);
    [[nodiscard]] QImage readIndexes(const Piece& piece);
    [[nodiscard]] bool readBytes(const Piece& piece, Band& band, std::vector<uchar>& bytes,
                                 std::vector<uchar>& hasData);
    /// Alpha or mask; empty when there is neither.
    [[nodiscard]] bool readAlpha(const Piece& piece, std::vector<uchar>& alpha);
    [[nodiscard]] bool readPlane(const Piece& piece, const LevelBand& band, GDALDataType type,
                                 void* values) const;
    void findStretch(Band& band);
    [[nodiscard]] LevelBand maskBand(std::size_t level) const;

    const RasterLevels* m_levels = nullptr;
    std::vector<Band> m_bands; ///< one, or red, green and blue
    std::vector<QRgb> m_palette;
    int m_alpha = 0;         ///< the number of the alpha band, 0 without one
    double m_alphaMax = 255; ///< its value for opaque
    bool m_hasMask = false;
    bool m_hasGaps = false; ///< some values mean "no data"
    bool m_isPlain = false; ///< three bands of bytes, all opaque
};

} // namespace lum
