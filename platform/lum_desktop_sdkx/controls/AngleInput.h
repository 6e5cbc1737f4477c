#pragma once

#include <QString>

#include <optional>

/// The letters that an angle may have in place of a sign.
enum class AngleLetters
{
    None,
    NorthSouth, ///< latitudes: N and S, 北 and 南, 北纬 and 南纬
    EastWest,   ///< longitudes: E and W, 东 and 西, 东经 and 西经
};

/// Reads an angle with its minutes and seconds: 117°30'00", 117 30 00, 117:30, 117度30分00秒. It
/// may have a sign before it or one of the letters before or behind it, and decimals in its last
/// part.
/// \returns degrees; nothing for any other text
[[nodiscard]] std::optional<double> readAngle(const QString& text, AngleLetters letters);
