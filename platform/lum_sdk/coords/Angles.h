#pragma once

#include <cstdint>
#include <string>

// Angles in radians, decimal degrees, and "dd.mmss": sign, whole degrees, two digits of minutes,
// then seconds with their decimals, so that -12.3456789 is -12 degrees 34 minutes 56.789 seconds.

/// dd.mmss to radians. // spelled as registered
[[nodiscard]] double Angle2Radian(double dms);

/// Decimal degrees to dd.mmss. Seconds that nine decimals would print as 60 are carried into the
/// minutes; that moves the angle by 1.4e-9 degrees at most. // spelled as registered
[[nodiscard]] double covertToAngle(double degrees);

/// dd.mmss to decimal degrees. // spelled as registered
[[nodiscard]] double convetFromAngle(double dms);

namespace lum {

/// How angles are written in a call of the coordinate service. The user's choice, the status key
/// "degree_format", counts otherwise: 0 is decimal degrees, anything else degrees-minutes-seconds.
enum class AngleFormat : std::int32_t
{
    Degrees = 1,
    DegreesMinutesSeconds = 2, ///< dd.mmss
    Radians = 3,
    DecimalDegrees = 4, ///< the same as `Degrees`
};

[[nodiscard]] bool isAngleFormat(std::int32_t code);

[[nodiscard]] double toRadians(double angle, AngleFormat format);
[[nodiscard]] double fromRadians(double radians, AngleFormat format);

/// Whether a dd.mmss angle has at most 59 minutes, and less than 60 seconds.
[[nodiscard]] bool isSexagesimal(double dms);

/// An angle as dd.mmss text with `decimals` digits, at least 4. Seconds that round to 60 are
/// carried for any number of digits, and a negative angle that rounds to 0 has no sign.
[[nodiscard]] std::string angleText(double degrees, int decimals);

} // namespace lum
