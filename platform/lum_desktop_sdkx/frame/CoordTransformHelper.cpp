#include "lum_desktop_sdkx/frame/CoordTransformHelper.h"

#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"

#include <QPointF>

namespace {

constexpr auto kGeodetic = static_cast<int>(CoordKind::Geodetic);
constexpr auto kPlane = static_cast<int>(CoordKind::Plane);

bool transform(int from, int to, const CoordTriple& in, CoordTriple& out)
{
    return get_project_coord_transform().transform(
               static_cast<int>(CoordDirection::Target), from, to,
               static_cast<int>(lum::AngleFormat::DecimalDegrees), in.first, in.second, in.third,
               &out.first, &out.second, &out.third) == 0;
}

lum::PlaneAxes axes()
{
    return lum::planeAxes(get_project_coord_transform().parameters());
}

} // namespace

QPointF CoordTransformHelper::projectToMap(double north, double east) const
{
    const lum::PlaneAxes grid = axes();
    return {grid.eastSign() * east, grid.northSign() * north};
}

bool CoordTransformHelper::geodeticToMap(double latitudeDeg, double longitudeDeg,
                                         QPointF& map) const
{
    CoordTriple plane;
    if (!transform(kGeodetic, kPlane, {latitudeDeg, longitudeDeg, 0}, plane))
        return false;
    map = projectToMap(plane.first, plane.second);
    return true;
}

bool CoordTransformHelper::mapToGeodetic(const QPointF& map, double& latitudeDeg,
                                         double& longitudeDeg) const
{
    CoordTriple plane;
    mapToProject(map, plane.first, plane.second);
    CoordTriple geodetic;
    if (!transform(kPlane, kGeodetic, plane, geodetic))
        return false;
    latitudeDeg = geodetic.first;
    longitudeDeg = geodetic.second;
    return true;
}

void CoordTransformHelper::mapToProject(const QPointF& map, double& north, double& east) const
{
    const QPointF grid = projectToMap(map.y(), map.x()); // turning an axis twice leaves it
    north = grid.y();
    east = grid.x();
}
