#include "lum_sdk/coords/Angles.h"

#include "basalt_utilities/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr double kDegree = std::numbers::pi / 180;

struct Sexagesimal
{
    double degrees;
    double minutes;
    double seconds; ///< below `60 - halfUnit`
};

/// Splits a positive angle. Seconds that would be printed as 60, those within `halfUnit` of it, are
/// carried into the minutes.
Sexagesimal split(double degrees, double halfUnit)
{
    Sexagesimal parts{std::floor(degrees), 0, 0};
    const double seconds = (degrees - parts.degrees) * 3600;
    parts.minutes = std::floor(seconds / 60);
    parts.seconds = std::max(0.0, seconds - parts.minutes * 60);
    if (parts.seconds >= 60 - halfUnit) {
        parts.seconds = 0;
        parts.minutes += 1;
    }
    if (parts.minutes >= 60) {
        parts.minutes = 0;
        parts.degrees += 1;
    }
    return parts;
}

double joined(const Sexagesimal& parts)
{
    return parts.degrees + parts.minutes / 100 + parts.seconds / 10000;
}

} // namespace

double Angle2Radian(double dms)
{
    return convetFromAngle(dms) * kDegree;
}

double covertToAngle(double degrees)
{
    return std::copysign(joined(split(std::abs(degrees), 5e-6)), degrees);
}

double convetFromAngle(double dms)
{
    // 12.34 has no exact double and may lie just below 34 minutes: add up to 1e-7 seconds first.
    const double angle = std::abs(dms);
    const double degrees = std::floor(angle + 1e-11);
    const double rest = (angle - degrees) * 100;
    const double minutes = std::floor(rest + 1e-9);
    const double seconds = (rest - minutes) * 100;
    return std::copysign(degrees + minutes / 60 + seconds / 3600, dms);
}

namespace lum {

bool isAngleFormat(std::int32_t code)
{
    return code >= 1 && code <= 4;
}

double toRadians(double angle, AngleFormat format)
{
    switch (format) {
    case AngleFormat::DegreesMinutesSeconds:
        return Angle2Radian(angle);
    case AngleFormat::Radians:
        return angle;
    default:
        return angle * kDegree;
    }
}

double fromRadians(double radians, AngleFormat format)
{
    switch (format) {
    case AngleFormat::DegreesMinutesSeconds:
        return covertToAngle(radians / kDegree);
    case AngleFormat::Radians:
        return radians;
    default:
        return radians / kDegree;
    }
}

bool isSexagesimal(double dms)
{
    const double angle = std::abs(dms) + 1e-11; // as `convetFromAngle` reads it
    const double minutes = (angle - std::floor(angle)) * 100;
    return minutes < 60 && (minutes - std::floor(minutes + 1e-9)) * 100 < 60;
}

std::string angleText(double degrees, int decimals)
{
    const int digits = std::clamp(decimals, 4, 12);
    const double unit = std::pow(10.0, 4 - digits); // of the last digit, in seconds
    const double dms = joined(split(std::abs(degrees), unit / 2));
    std::string text = basalt::formatFixed(dms, digits);
    const bool isZero = text.find_first_not_of("0.") == std::string::npos;
    return degrees < 0 && !isZero ? '-' + text : text;
}

} // namespace lum
