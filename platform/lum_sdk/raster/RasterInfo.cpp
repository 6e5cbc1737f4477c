#include "lum_sdk/raster/RasterInfo.h"

namespace lum {

namespace {

constexpr qint64 kManyPixels = 16'000'000;

qint64 pixelsOf(const QSize& size)
{
    return qint64(size.width()) * size.height();
}

} // namespace

bool RasterInfo::lacksOverviews() const
{
    qint64 fewest = pixelsOf(size);
    for (const RasterLevel& level : levels) {
        if (level.isStored)
            fewest = pixelsOf(level.size);
    }
    return fewest > kManyPixels;
}

} // namespace lum
