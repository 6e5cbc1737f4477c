#pragma once

#include "lum_sdk/raster/BaseMap.h"
#include "lum_sdk/raster/TileQueue.h"

#include <QString>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>

namespace lum {

/// What a tile image shares with the threads that fetch for it. The last of them ends it.
struct TileFetch
{
    TileFetch(const BaseMap& baseMap, const TileFetching& how);
    ~TileFetch();
    TileFetch(const TileFetch&) = delete;
    TileFetch& operator=(const TileFetch&) = delete;

    const BaseMap map;
    const TileFetching fetching;
    const QString rasterName; ///< by which GDAL opens it
    const std::string host;   ///< empty for a file
    const quint64 owner;      ///< of the tiles in `RasterBlockCache`
    std::atomic<bool> isEnded = false;

    mutable std::mutex mutex; ///< of all below
    mutable std::condition_variable changed;
    TileQueue queue;
    /// Once the base map is open; then the same for ever. Levels that a service does not have are
    /// left out.
    std::shared_ptr<const RasterInfo> info;
    bool isStarted = false;
    bool hasNews = false; ///< for who paints
    int answers = 0;      ///< that were no failures
    int httpStatus = 0;   ///< of the last failure; 0 when there was no answer
    std::string detail;   ///< of the last failure, in the library's words
};

/// Stands in the queue for opening the base map, which may need the service as well.
constexpr RasterBlockId kOpening{static_cast<std::size_t>(-1), 0, 0};

/// Starts the threads that fetch what the queue says, until `isEnded`.
void startFetching(const std::shared_ptr<TileFetch>& fetch);

} // namespace lum
