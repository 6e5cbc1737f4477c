#pragma once

/// A base station: where it is on the project grid, and what else the survey result says of it.
struct BaseStation
{
    double north = 0; ///< metres
    double east = 0;  ///< metres
    double latitudeDeg = 0;
    double longitudeDeg = 0;
    double altitudeM = 0;
};
