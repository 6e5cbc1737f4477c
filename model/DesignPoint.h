#pragma once

#include <cstdint>
#include <string>

/// A point of the design grid.
struct DesignPoint
{
    std::string lineNumber;
    std::string pointNumber;
    double north = 0;        ///< in the unit of the coordinate system
    double east = 0;         ///< likewise
    double elevation = 0;    ///< metres
    double azimuth = 0;      ///< of the line at the point, as it was given
    std::int32_t type = 0;   ///< 1 receiver, 0 source
    std::int32_t status = 0; ///< 0 not surveyed yet
};
