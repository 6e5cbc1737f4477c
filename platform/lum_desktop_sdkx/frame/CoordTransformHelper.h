#pragma once

#include "lum_desktop_sdkx/ICoordTransformHelper.h"

/// The map shows the project grid itself: x is easting, y is northing, and those of a system whose
/// axes point south or west are turned, so that north is up. The geodetic operations use
/// the project's coordinate system, and answer false without one.
class CoordTransformHelper final : public ICoordTransformHelper
{
public:
    [[nodiscard]] QPointF projectToMap(double north, double east) const override;
    [[nodiscard]] bool geodeticToMap(double latitudeDeg, double longitudeDeg,
                                     QPointF& map) const override;
    [[nodiscard]] bool mapToGeodetic(const QPointF& map, double& latitudeDeg,
                                     double& longitudeDeg) const override;
    void mapToProject(const QPointF& map, double& north, double& east) const override;
};
