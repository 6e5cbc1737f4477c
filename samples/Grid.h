#pragma once

#include "model/DesignPoint.h"

#include <vector>

namespace demo {

inline constexpr int kReceiver = 1; ///< a value of DesignPoint::type
inline constexpr int kSource = 0;

/// The coordinate system of the survey, WGS 84 / UTM zone 50N.
inline constexpr const char* kEpsgCode = "32650";

/// A place on the axes of the design grid, metres: x along the receiver lines, y along the source
/// lines.
struct LocalPlace
{
    double x = 0;
    double y = 0;
};

/// A place in the coordinate system of the survey, metres.
struct PlanePlace
{
    double north = 0;
    double east = 0;
};

[[nodiscard]] PlanePlace toPlane(const LocalPlace& place);
[[nodiscard]] LocalPlace toGrid(const PlanePlace& place);

/// The distance of two places, metres.
[[nodiscard]] double distance(const LocalPlace& a, const LocalPlace& b);

/// The direction of the lines of a type, degrees clockwise from grid north. Whole degrees, so that
/// decimal degrees and degrees with minutes and seconds are the same number.
[[nodiscard]] double azimuthDeg(int type);

/// The place `rightM` to the right of a line of this type and `alongM` further along it.
[[nodiscard]] LocalPlace moved(const LocalPlace& place, int type, double rightM, double alongM);

/// The design: 20 receiver lines (1000 to 1190), then 20 source lines (5000 to 5190) across them,
/// of 100 points each (1001 to 1100). No point is surveyed yet.
[[nodiscard]] std::vector<DesignPoint> designGrid();

} // namespace demo
