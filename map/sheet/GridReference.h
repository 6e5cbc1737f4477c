#pragma once

#include <array>
#include <string>

class IDictionary;

/// How a georeferenced file says where grid coordinates of a project lie.
struct GridReference
{
    /// The coordinate system as GDAL reads it: a code of the register, or a text of PROJ; empty
    /// when the project has none.
    std::string definition;
    /// From the grid to coordinates of that system: x is [0] + [1] east + [2] north, y is
    /// [3] + [4] east + [5] north. Grid coordinates themselves wherever the system can have them.
    std::array<double, 6> fromGrid{0, 1, 0, 0, 0, 1};
};

/// The system of the register, when the project's parameters are those of its name; otherwise a
/// projection with a datum shift to WGS 84. Axes to the south or west, a plane shift, constant
/// corrections, and a factor that files cannot tell go into `fromGrid`: they are linear.
[[nodiscard]] GridReference gridReference(const IDictionary& system);
