#pragma once

#include "lum_sdk/raster/RasterPainting.h"

#include <QCache>
#include <QImage>

#include <mutex>

namespace lum {

/// Blocks of all rasters of the process, the last used ones up to a limit of memory. Any thread.
class RasterBlockCache
{
public:
    static constexpr int kLimitKb = 256 * 1024;

    /// The one of the process.
    [[nodiscard]] static RasterBlockCache& instance();

    explicit RasterBlockCache(int limitKb = kLimitKb) : m_blocks(limitKb) {}

    /// A number for a raster's blocks, never given twice.
    [[nodiscard]] quint64 newOwner();

    /// Null when it is not there.
    [[nodiscard]] QImage find(quint64 owner, const RasterBlockId& id);
    void add(quint64 owner, const RasterBlockId& id, const QImage& block);
    /// Forgets all blocks of a raster.
    void remove(quint64 owner);

    struct Key
    {
        quint64 owner = 0;
        RasterBlockId id;

        friend bool operator==(const Key&, const Key&) = default;
    };

private:
    std::mutex m_mutex;
    QCache<Key, QImage> m_blocks;
    quint64 m_lastOwner = 0;
};

} // namespace lum
