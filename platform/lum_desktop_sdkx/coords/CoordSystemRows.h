#pragma once

#include <QString>

#include <string_view>
#include <vector>

class IDictionary;

/// How the rows of a coordinate system depend on its other parameters.
namespace CoordSystemRows {

/// Ellipsoids that have no name of their own carry this one.
inline constexpr const char* kCustomEllipsoid = "Custom";

struct Visibility
{
    QString key;
    bool isShown = false;
};

/// One entry for each key that is shown only with certain projections, or while the correction that
/// it belongs to is switched on.
[[nodiscard]] std::vector<Visibility> visibilities(const IDictionary& parameters);

/// The name that fits the axis and inverse flattening of `parameters`: the one that stands there as
/// long as it fits, since some ellipsoids have two names.
[[nodiscard]] QString ellipsoidName(const IDictionary& parameters);

/// Writes axis and inverse flattening of a known ellipsoid.
/// \returns false, with nothing written, when the name is not known
bool fillEllipsoid(std::string_view name, IDictionary& parameters);

/// What "parallel_1_lat" means in the chosen projection.
[[nodiscard]] QString firstParallelCaption(const IDictionary& parameters);

/// The unit of plane coordinates, told by the scale factor, which turns metres into it: "m", "ft",
/// or nothing for a rarer one.
[[nodiscard]] QString planeUnit(const IDictionary& parameters);

/// The keys whose values are in that unit.
[[nodiscard]] const std::vector<QString>& planeLengths();

/// Whether the parameters name an ellipsoid or a projection at all.
[[nodiscard]] bool isSet(const IDictionary& parameters);

} // namespace CoordSystemRows
