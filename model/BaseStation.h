#pragma once

/// A base station: where it is on the project grid, and what else the survey result says of it.
struct BaseStation
{
    double north = 0; ///< in the unit of the coordinate system
    double east = 0;  ///< likewise
    double latitudeDeg = 0;
    double longitudeDeg = 0;
    double altitudeM = 0;
};
