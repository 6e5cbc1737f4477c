#pragma once

#include <QString>

#include <string_view>
#include <vector>

class IDictionary;

/// How the rows of a coordinate system depend on the parameters.
namespace CoordSystemRows {

/// The name of an ellipsoid that is none of the known ones.
inline constexpr const char* kCustomEllipsoid = "Custom";

struct Visibility
{
    QString key;
    bool isShown = false;
};

/// One entry for each key that is shown only with certain projections, or only while its correction
/// is switched on.
[[nodiscard]] std::vector<Visibility> visibilities(const IDictionary& parameters);

/// The name of the ellipsoid with the axis and inverse flattening of `parameters`. The name that is
/// there stays while it fits, since some ellipsoids have two names.
[[nodiscard]] QString ellipsoidName(const IDictionary& parameters);

/// Writes the axis and inverse flattening of a known ellipsoid.
/// \returns false, and writes nothing, when the name is not known
bool fillEllipsoid(std::string_view name, IDictionary& parameters);

/// The caption of "parallel_1_lat", which has another meaning in some projections.
[[nodiscard]] QString firstParallelCaption(const IDictionary& parameters);

/// The keys whose values are in the unit of plane coordinates.
[[nodiscard]] const std::vector<QString>& planeLengths();

/// True when the parameters have an ellipsoid or a projection.
[[nodiscard]] bool isSet(const IDictionary& parameters);

} // namespace CoordSystemRows
