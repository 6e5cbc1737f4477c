#include "design/Azimuth.h"

#include <cmath>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr int kDecimals = 6;
constexpr double kLargestCoordinate = 1'000'000'000;

/// From -0.0 to 0.0, of which alone the azimuth is 0.
double withoutSign(double zero)
{
    return zero + 0.0;
}

/// The whole degrees that single precision cannot tell from these: due west is -90, not -90.000003.
double wholeIfAlike(double degrees)
{
    const double whole = std::round(degrees);
    return static_cast<float>(degrees) == static_cast<float>(whole) ? whole : degrees;
}

} // namespace

Azimuth azimuthBetween(double startNorth, double startEast, double destinationNorth,
                       double destinationEast)
{
    const auto north = static_cast<float>(withoutSign(destinationNorth - startNorth));
    const auto east = static_cast<float>(withoutSign(destinationEast - startEast));
    return {wholeIfAlike(static_cast<double>(std::atan2(east, north)) * 180 / kPi),
            static_cast<double>(std::sqrt(north * north + east * east))};
}

double foldedAzimuth(double degrees)
{
    const double rest = std::fmod(degrees, 360);
    const double folded = rest < 0 ? rest + 360 : rest;
    return folded < 360 ? withoutSign(folded) : 0; // a tiny negative angle rounds to 360
}

QString azimuthText(double degrees, lum::AngleFormat format)
{
    if (format == lum::AngleFormat::DegreesMinutesSeconds)
        return QString::fromStdString(lum::angleText(degrees, kDecimals));
    const QString text = QString::number(degrees, 'f', kDecimals);
    return text == QLatin1String("-0.000000") ? text.mid(1) : text;
}

std::optional<double> azimuthOf(const QString& text, lum::AngleFormat format)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return {};
    return format == lum::AngleFormat::DegreesMinutesSeconds ? convetFromAngle(value) : value;
}

QString lengthText(double length)
{
    return QString::number(length, 'f', kDecimals);
}

std::optional<double> readCoordinate(const QString& text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    const bool isCoordinate = isNumber && std::abs(value) <= kLargestCoordinate; // false for NaN
    return isCoordinate ? std::optional(value) : std::nullopt;
}
