#include "lum_sdk/raster/RasterLevels.h"

#include <algorithm>
#include <cmath>

namespace lum {

namespace {

constexpr int kBlock = 256;
constexpr int kMostBlock = 1024;
constexpr int kStripLines = 64;

QSize sizeOf(GDALRasterBandH band)
{
    return {GDALGetRasterBandXSize(band), GDALGetRasterBandYSize(band)};
}

QSize naturalBlock(GDALRasterBandH band)
{
    int width = 0;
    int height = 0;
    GDALGetBlockSize(band, &width, &height);
    return {std::max(width, 1), std::max(height, 1)};
}

/// `length` as often as it takes to reach `least`.
int atLeast(int length, int least)
{
    return (least + length - 1) / length * length;
}

/// A block to read at once: whole tiles of the file, or a piece of some of its strips.
QSize blockOf(const QSize& level, const QSize& natural)
{
    const bool isStrip = natural.width() >= level.width() || natural.width() > kMostBlock;
    QSize block;
    if (isStrip)
        block = {kMostBlock, atLeast(std::min(natural.height(), kBlock), kStripLines)};
    else
        block = {atLeast(natural.width(), kBlock),
                 std::min(atLeast(natural.height(), kBlock), kMostBlock)};
    return block.boundedTo(level);
}

/// The smaller the share of the pixels that is kept, the more of the file a block needs.
QSize thinnedBlock(const QSize& level, const QSize& natural, int factor)
{
    if (natural.width() > kMostBlock)
        return QSize(kMostBlock, 16).boundedTo(level);
    const int side = std::clamp(4096 / factor, 64, kBlock);
    return QSize(side, side).boundedTo(level);
}

bool hasShapeOf(const QSize& size, const QSize& full)
{
    const double stepX = double(full.width()) / size.width();
    const double stepY = double(full.height()) / size.height();
    // Rounding to whole pixels moves both by less than a pixel.
    return std::abs(size.width() - full.width() / stepY) < 1.5 ||
           std::abs(size.height() - full.height() / stepX) < 1.5;
}

} // namespace

RasterLevels::RasterLevels(GDALDatasetH dataset, bool isThinned) : m_dataset(dataset)
{
    const GDALRasterBandH first = GDALGetRasterBand(dataset, 1);
    const QSize full = sizeOf(first);
    m_levels.push_back({full, blockOf(full, naturalBlock(first))});
    m_overviews.push_back(-1);
    addOverviews(full);
    if (isThinned)
        addThinned();
}

void RasterLevels::addOverviews(const QSize& full)
{
    int count = GDALGetOverviewCount(GDALGetRasterBand(m_dataset, 1));
    for (int band = 2; band <= GDALGetRasterCount(m_dataset); ++band)
        count = std::min(count, GDALGetOverviewCount(GDALGetRasterBand(m_dataset, band)));
    std::vector<std::pair<QSize, int>> found;
    for (int number = 0; number < count; ++number) {
        const GDALRasterBandH overview = GDALGetOverview(GDALGetRasterBand(m_dataset, 1), number);
        const QSize size = overview == nullptr ? QSize() : sizeOf(overview);
        if (!size.isEmpty() && size.width() <= full.width() && size != full &&
            hasShapeOf(size, full))
            found.emplace_back(size, number);
    }
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) {
        return a.first.width() > b.first.width();
    });
    for (const auto& [size, number] : found) {
        const GDALRasterBandH overview = GDALGetOverview(GDALGetRasterBand(m_dataset, 1), number);
        m_levels.push_back({size, blockOf(size, naturalBlock(overview))});
        m_overviews.push_back(number);
    }
}

void RasterLevels::addThinned()
{
    const RasterLevel stored = m_levels.back();
    const QSize natural = naturalBlock(band(lastStored(), 1).band);
    for (int factor = 2;
         std::max(m_levels.back().size.width(), m_levels.back().size.height()) > kBlock;
         factor *= 2) {
        const QSize size((stored.size.width() + factor - 1) / factor,
                         (stored.size.height() + factor - 1) / factor);
        m_levels.push_back({size, thinnedBlock(size, natural, factor), false});
    }
}

LevelBand RasterLevels::band(std::size_t level, int band) const
{
    const std::size_t stored = std::min(level, lastStored());
    LevelBand found{GDALGetRasterBand(m_dataset, std::max(band, 1))};
    if (m_overviews[stored] >= 0)
        found.band = GDALGetOverview(found.band, m_overviews[stored]);
    if (band == 0)
        found.band = GDALGetMaskBand(found.band);
    if (level != stored) {
        found.stepX = double(m_levels[stored].size.width()) / m_levels[level].size.width();
        found.stepY = double(m_levels[stored].size.height()) / m_levels[level].size.height();
    }
    return found;
}

} // namespace lum
