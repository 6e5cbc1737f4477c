#pragma once

#include <string>

class IDictionary;

/// The linear unit of a coordinate system: of its plane coordinates, and so of every distance that
/// is computed from them. Heights are metres in every system.
///
/// The scale bar and the read-out of the cursor turn plane coordinates into the unit that the user
/// wants to see; the coordinate page names the unit; the quality check turns distances on the plane
/// into metres, the unit of its limits; a point that is shown on the map is zoomed to by metres.
namespace lum {

/// A linear unit, named as in the EPSG register.
struct LengthUnit
{
    double metres = 1.0; ///< metres per unit
    std::string name = "metre";
};

inline const LengthUnit kMetre;
inline const LengthUnit kFoot{0.3048, "foot"}; ///< international
inline const LengthUnit kUsSurveyFoot{1200.0 / 3937, "US survey foot"};

/// The parameter of a coordinate system that tells its unit: metres per unit, as text with all
/// digits. A system in metres has none. `fillFromEpsg` and `toStoredForm` write it.
inline constexpr const char* kLengthUnitKey = "unit_m";

/// The unit of this size in the EPSG register, to 1e-10 of it; of a size without a name in it, the
/// name is the size, such as "0.25 m".
[[nodiscard]] LengthUnit lengthUnit(double metres);

/// The unit of a coordinate system.
///
/// `kLengthUnitKey` tells it while it agrees with the scale of the plane: "factor" and "_4s" hold
/// units per metre. A system without the key is in metres when its scale is about 1; otherwise the
/// unit is the one that leaves the scale of fewest decimals (0.9999 times 3937/1200 is a system in
/// US survey feet); for a rounded factor, the unit that comes closest to a scale of 1.
/// \returns metres when nothing is said
[[nodiscard]] LengthUnit lengthUnitOf(const IDictionary& coordParameters);

/// Writes `kLengthUnitKey`, or removes it for metres.
void setLengthUnit(const LengthUnit& unit, IDictionary& coordParameters);

/// The parameters of a coordinate system that are in its unit, comma-separated.
inline constexpr const char* kPlaneLengths =
    "false_east,false_north,_4dx,_4dy,_4x0,_4y0,correct_dx,correct_dy,fit_x0,fit_y0,ver_x0,ver_y0";

[[nodiscard]] bool isMetre(const LengthUnit& unit);

/// "m", "ft" for the international foot, "ftUS", otherwise the name.
[[nodiscard]] std::string symbolOf(const LengthUnit& unit);

} // namespace lum
