#pragma once

#include "lum_sdk/coords/Angles.h"

#include <QString>

#include <optional>

/// Direction and distance from one place of the grid to another.
struct Azimuth
{
    double degrees = 0; ///< from north towards east, -180 to 180
    double length = 0;  ///< in the unit of the grid
};

/// The differences are formed in double precision, the rest is computed in single precision: the
/// results have about seven digits. Both are 0 when the two places are the same.
[[nodiscard]] Azimuth azimuthBetween(double startNorth, double startEast, double destinationNorth,
                                     double destinationEast);

/// The same direction as 0 up to, and without, 360 degrees. Lines are designed with this form: a
/// right angle cannot be added to a negative angle that is written as dd.mmss.
[[nodiscard]] double foldedAzimuth(double degrees);

// The texts of the calculator, degrees or dd.mmss.

/// An azimuth with six decimals. One that rounds to 0 has no sign, and seconds never read 60.
[[nodiscard]] QString azimuthText(double degrees, lum::AngleFormat format);
/// The degrees of such a text; nothing when it holds no number.
[[nodiscard]] std::optional<double> azimuthOf(const QString& text, lum::AngleFormat format);
/// A length with six decimals.
[[nodiscard]] QString lengthText(double length);

/// Reads a coordinate, in every locale with a decimal point.
/// \returns nothing when there is no number, or one beyond 1,000,000,000
[[nodiscard]] std::optional<double> readCoordinate(const QString& text);
