#pragma once

#include "samples/Grid.h"

#include <optional>

namespace demo {

/// What is in the way of a stake, by the codes of model/CodeTables.h.
enum class Obstacle
{
    None = 0,
    Houses = 1,
    River = 13,
};

/// The height of the ground above the ellipsoid, metres: smooth hills, and the valley of the river.
[[nodiscard]] double groundHeight(const LocalPlace& place);

/// The obstacle at a place, or within `clearanceM` of it.
[[nodiscard]] Obstacle obstacleAt(const LocalPlace& place, double clearanceM = 0);

/// How far a stake is moved away from an obstacle.
struct Skid
{
    double rightM = 0; ///< across the line
    double alongM = 0;
};

/// The shortest skid, across or along the line, to a place without an obstacle.
/// \param type of the design point
/// \returns nothing when it would be longer than is allowed
[[nodiscard]] std::optional<Skid> shortestSkid(const LocalPlace& place, int type);

} // namespace demo
