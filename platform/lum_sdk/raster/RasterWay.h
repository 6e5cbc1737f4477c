#pragma once

#include "lum_sdk/coords/CoordWjl.h"
#include "lum_sdk/coords/ProjHandles.h"

#include <QPointF>

#include <memory>
#include <span>
#include <string>

namespace lum {

/// The way between the coordinates of a raster's system and the project's plane. One thread at a
/// time.
class RasterWay
{
public:
    /// Null when either system is missing or cannot be used.
    /// \param center  of the raster, in its coordinates; it decides whether the datums are the same
    [[nodiscard]] static std::unique_ptr<RasterWay>
    between(const std::string& wkt, const IDictionary& system, const QPointF& center);

    /// From (east, north) of the project to (X, Y) of the raster, in place. NaN where there is no
    /// answer, or where the answer does not lead back: a projection may repeat itself.
    void toRaster(std::span<QPointF> points);
    /// The other way.
    void toPlane(std::span<QPointF> points);

private:
    RasterWay() = default;

    [[nodiscard]] bool setUp(const std::string& wkt, const IDictionary& system,
                             const QPointF& center);
    /// Whether the raster lies on the datum of the project; `local` leads from its datum.
    [[nodiscard]] bool isSameDatum(PJ* raster, PJ* local, const IDictionary& system,
                                   const QPointF& center);
    [[nodiscard]] bool isSameEllipsoid(PJ* raster, const IDictionary& system) const;
    /// Longitude and latitude, degrees, to coordinates of the raster; null when not even roughly
    /// known.
    [[nodiscard]] ProjObject operation(PJ* from, PJ* to, bool isRoughAllowed) const;
    [[nodiscard]] QPointF inRange(const QPointF& point) const;

    ProjContext m_context;
    ProjObject m_raster; ///< from longitude and latitude in degrees, on the datum of `m_project`
    CoordWjl m_project;
    bool m_isGeographic = false;
    double m_centralLongitude = 0;
};

} // namespace lum
