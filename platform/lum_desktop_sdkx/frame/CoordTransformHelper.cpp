#include "lum_desktop_sdkx/frame/CoordTransformHelper.h"

#include <QPointF>

QPointF CoordTransformHelper::projectToMap(double north, double east) const
{
    return {east, north};
}

bool CoordTransformHelper::geodeticToMap(double /*latitudeDeg*/, double /*longitudeDeg*/,
                                         QPointF& /*map*/) const
{
    return false;
}

bool CoordTransformHelper::mapToGeodetic(const QPointF& /*map*/, double& /*latitudeDeg*/,
                                         double& /*longitudeDeg*/) const
{
    return false;
}

void CoordTransformHelper::mapToProject(const QPointF& map, double& north, double& east) const
{
    north = map.y();
    east = map.x();
}
