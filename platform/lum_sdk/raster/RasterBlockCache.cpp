#include "lum_sdk/raster/RasterBlockCache.h"

#include <QHash>

#include <algorithm>

namespace lum {

/// Found by the hash table of Qt.
static uint qHash(const RasterBlockCache::Key& key, uint seed = 0)
{
    const quint64 place = (quint64(key.id.level) << 56U) ^ (quint64(key.id.row) << 28U) ^
                          quint64(key.id.column) ^ (key.owner << 40U);
    return ::qHash(place, seed);
}

RasterBlockCache& RasterBlockCache::instance()
{
    static RasterBlockCache cache;
    return cache;
}

quint64 RasterBlockCache::newOwner()
{
    const std::lock_guard lock(m_mutex);
    return ++m_lastOwner;
}

QImage RasterBlockCache::find(quint64 owner, const RasterBlockId& id)
{
    const std::lock_guard lock(m_mutex);
    const QImage* const found = m_blocks.object({owner, id});
    return found == nullptr ? QImage() : *found;
}

void RasterBlockCache::add(quint64 owner, const RasterBlockId& id, const QImage& block)
{
    const int kilobytes = static_cast<int>(block.sizeInBytes() / 1024) + 1;
    auto kept = std::make_unique<QImage>(block);
    const std::lock_guard lock(m_mutex);
    m_blocks.insert({owner, id}, kept.release(), kilobytes); // the cache owns it
}

void RasterBlockCache::remove(quint64 owner)
{
    const std::lock_guard lock(m_mutex);
    const QList<Key> keys = m_blocks.keys();
    for (const Key& key : keys) {
        if (key.owner == owner)
            m_blocks.remove(key);
    }
}

} // namespace lum
