#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/raster/RasterInfo.h"

#include <QPointF>
#include <QRectF>

#include <memory>
#include <span>

namespace lum {

class RasterWay;

/// Where a raster lies on the map: the way between its pixels and map coordinates, for one
/// coordinate system of the project.
///
/// The way leads through the project's coordinate service and the raster's own system. On the same
/// datum it stays there, so that a shift to WGS 84 that only the project knows moves nothing;
/// datums count as the same when the ellipsoids are equal and what is known of their shifts to WGS
/// 84 does not contradict. A raster in the project's own system is not transformed at all; without
/// a system of the raster or of the project, its coordinates are taken for the project's.
///
/// It serves one thread at a time.
class RasterPlace
{
public:
    /// Sets up the transformation, which takes up to some 50 ms.
    /// \param info  outlives this object
    RasterPlace(const RasterInfo& info, const IDictionary& system);
    RasterPlace(RasterInfo&& info, const IDictionary& system) = delete;
    ~RasterPlace();

    [[nodiscard]] const RasterInfo& info() const { return m_info; }
    /// Whether it was made for this system of the project.
    [[nodiscard]] bool isFor(const IDictionary& system) const;

    /// Whether pixels and map differ by a shift, a scale and a turn only.
    [[nodiscard]] bool isAffine() const { return m_way == nullptr; }

    /// Pixels of the full resolution, as `RasterInfo::toCoordinates` counts them, in place. Both
    /// coordinates become NaN where there is no answer: beyond the world or the projection.
    void toPixels(std::span<QPointF> map) const;
    void toMap(std::span<QPointF> pixels) const;

    /// The rectangle around the raster, map coordinates; null when it lies nowhere.
    [[nodiscard]] const QRectF& extent() const { return m_extent; }

    /// The extent with a margin for sides that are bent.
    [[nodiscard]] const QRectF& reach() const { return m_reach; }
    /// Whether every part of the raster has a place on the map, and so lies within `reach`.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }

private:
    void findExtent();

    const RasterInfo& m_info;
    basalt::Dictionary m_system;
    std::unique_ptr<RasterWay> m_way; ///< null when the coordinates of both are the same
    double m_eastSign = 1;
    double m_northSign = 1;
    QRectF m_extent;
    QRectF m_reach;
    bool m_isWhole = false;
};

} // namespace lum
