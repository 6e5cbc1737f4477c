#pragma once

#include <string>
#include <string_view>

class IDictionary;

/// Fills a coordinate-parameter dictionary with a projected system of the EPSG register.
///
/// Ellipsoid, projection and datum shift are replaced, other corrections are switched off; other
/// keys stay. The datum shift is the best of `epsgDatumShifts`, and _7type is 0 when there is none;
/// PROJ itself may choose another one for a place, a grid or the shift of a smaller region. A
/// system in feet gives coordinates in feet, by its factor and false origin, and has its unit as
/// `kLengthUnitKey` (LengthUnit.h); heights stay metres.
/// The coordinates point where the register says: for axes to the south or west "axis_direction"
/// is set, and the northings are southings, the eastings westings.
///
/// \returns empty, or why the system cannot be described, in the user's language, UTF-8; then
///          `parameters` is as it was
[[nodiscard]] std::string fillFromEpsg(std::string_view code, IDictionary& parameters);

/// The same without the datum shift, whose keys stay as they are: finding one takes most of the
/// time.
[[nodiscard]] std::string fillProjectionFromEpsg(std::string_view code, IDictionary& parameters);

/// What the register calls a system, such as "WGS 84 / UTM zone 50N" for "32650"; empty when it has
/// none of this code.
[[nodiscard]] std::string epsgName(std::string_view code);
