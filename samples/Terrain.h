#pragma once

#include "samples/Grid.h"

#include <optional>

namespace demo {

/// What stands in the way of a stake: the codes of project/model/CodeTables.h.
enum class Obstacle
{
    None = 0,
    Houses = 1,
    River = 13,
};

/// The height of the ground above the ellipsoid, metres: smooth hills, and a valley with the river.
[[nodiscard]] double groundHeight(const LocalPlace& place);

/// What is at a place, or nearer to it than `clearanceM`.
[[nodiscard]] Obstacle obstacleAt(const LocalPlace& place, double clearanceM = 0);

/// How far a stake is moved off an obstacle.
struct Skid
{
    double rightM = 0; ///< across the line
    double alongM = 0;
};

/// The shortest skid, across or along the line, to where nothing is in the way; nothing when it is
/// longer than crews may go.
[[nodiscard]] std::optional<Skid> shortestSkid(const LocalPlace& place, int type);

} // namespace demo
