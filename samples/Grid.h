#pragma once

#include "model/DesignPoint.h"

#include <vector>

namespace demo {

inline constexpr int kReceiver = 1; ///< DesignPoint::type
inline constexpr int kSource = 0;

/// The coordinate system of the survey, WGS 84 / UTM zone 50N.
inline constexpr const char* kEpsgCode = "32650";

/// A place by the grid's own axes, metres: x along the receiver lines, y along the source lines.
struct LocalPlace
{
    double x = 0;
    double y = 0;
};

/// A place in the coordinate system, metres.
struct PlanePlace
{
    double north = 0;
    double east = 0;
};

[[nodiscard]] PlanePlace toPlane(const LocalPlace& place);
[[nodiscard]] LocalPlace toGrid(const PlanePlace& place);

/// From one to the other, metres.
[[nodiscard]] double distance(const LocalPlace& a, const LocalPlace& b);

/// The direction of the lines of a kind, degrees clockwise from grid north. Whole degrees, which
/// are the same in decimal degrees and in dd.mmss.
[[nodiscard]] double azimuthDeg(int type);

/// `place`, moved to the right of a line of this kind and along it.
[[nodiscard]] LocalPlace moved(const LocalPlace& place, int type, double rightM, double alongM);

/// The survey's design: 20 receiver lines (1000 to 1190) across 20 source lines (5000 to 5190) of
/// 100 points each (1001 to 1100), line after line, none surveyed yet.
[[nodiscard]] std::vector<DesignPoint> designGrid();

} // namespace demo
