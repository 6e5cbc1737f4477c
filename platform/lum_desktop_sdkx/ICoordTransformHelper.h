#pragma once

class QPointF;

/// Converts between the coordinates of the project and those of the map. The order of the
/// operations is fixed.
///
/// The map shows the project grid with x = easting and y = northing, in its unit, so that the two
/// plane operations never fail. The two geodetic operations need a coordinate system.
class ICoordTransformHelper
{
public:
    virtual ~ICoordTransformHelper() = default;

    /// \param north,east in the unit of the project grid
    [[nodiscard]] virtual QPointF projectToMap(double north, double east) const = 0;

    /// \param latitudeDeg,longitudeDeg geodetic WGS 84
    /// \returns false, and leaves the outputs as they were, when the place cannot be converted
    [[nodiscard]] virtual bool geodeticToMap(double latitudeDeg, double longitudeDeg,
                                             QPointF& map) const = 0;
    [[nodiscard]] virtual bool mapToGeodetic(const QPointF& map, double& latitudeDeg,
                                             double& longitudeDeg) const = 0;

    virtual void mapToProject(const QPointF& map, double& north, double& east) const = 0;
};
