#pragma once

class QPointF;

/// Between the project's coordinates and those of the map, in this order of operations.
///
/// The map's frame is the project grid turned to x = easting, y = northing, in metres, so that the
/// two plane operations never fail; the two geodetic ones need a coordinate system.
class ICoordTransformHelper
{
public:
    virtual ~ICoordTransformHelper() = default;

    /// \param north,east metres on the project grid
    [[nodiscard]] virtual QPointF projectToMap(double north, double east) const = 0;

    /// \param latitudeDeg,longitudeDeg geodetic WGS 84
    /// \returns false, and leaves `map` alone, when there is no way to convert
    [[nodiscard]] virtual bool geodeticToMap(double latitudeDeg, double longitudeDeg,
                                             QPointF& map) const = 0;
    [[nodiscard]] virtual bool mapToGeodetic(const QPointF& map, double& latitudeDeg,
                                             double& longitudeDeg) const = 0;

    virtual void mapToProject(const QPointF& map, double& north, double& east) const = 0;
};
