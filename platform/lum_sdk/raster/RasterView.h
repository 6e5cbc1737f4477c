#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/Transform.h"

#include <atomic>
#include <chrono>

namespace lum {

/// The picture of the map that a raster is painted into.
struct RasterView
{
    using Clock = std::chrono::steady_clock;

    Transform transform;       ///< map coordinates to screen pixels
    double pixelRatio = 1;     ///< device pixels to a screen pixel
    basalt::Dictionary system; ///< the project's coordinate system; may be empty
    const std::atomic<bool>* cancelled = nullptr;
    /// When reading must end for now; by default everything is read.
    Clock::time_point deadline = Clock::time_point::max();

    [[nodiscard]] bool isCancelled() const { return cancelled != nullptr && cancelled->load(); }
    [[nodiscard]] bool isLate() const { return Clock::now() >= deadline; }
    /// The picture in device pixels.
    [[nodiscard]] QSize pixels() const { return transform.size() * pixelRatio; }
};

} // namespace lum
