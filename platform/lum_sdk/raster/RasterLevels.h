#pragma once

#include "lum_sdk/raster/RasterInfo.h"

#include <gdal.h>

namespace lum {

/// The band of a level in the file, and how far the level thins it out.
struct LevelBand
{
    GDALRasterBandH band = nullptr;
    double stepX = 1; ///< pixels of the band to one of the level
    double stepY = 1;
};

/// The resolutions of a data set: the full one, its overviews, and, when `isThinned`, more of half
/// the size each until all fits one block. An overview that not all bands have, or of another
/// shape, is left out.
class RasterLevels
{
public:
    RasterLevels() = default;
    RasterLevels(GDALDatasetH dataset, bool isThinned);

    [[nodiscard]] const std::vector<RasterLevel>& all() const { return m_levels; }

    /// \param band  from 1; 0 is the mask of the first band
    [[nodiscard]] LevelBand band(std::size_t level, int band) const;

    /// The coarsest that is in the file.
    [[nodiscard]] std::size_t lastStored() const { return m_overviews.size() - 1; }

private:
    void addOverviews(const QSize& full);
    void addThinned();

    GDALDatasetH m_dataset = nullptr;
    std::vector<RasterLevel> m_levels;
    std::vector<int> m_overviews; ///< the number of a stored level's overview; -1 is the full size
};

} // namespace lum
