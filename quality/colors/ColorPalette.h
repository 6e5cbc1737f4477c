#pragma once

#include <QRgb>

#include <array>

/// Colours that everybody can tell apart: also those who see no red, no green or no blue, on white
/// paper, and with an edge in dark tables. A search found them: as each of the four kinds of eyes
/// sees them, any two differ by more than 16 (CIEDE2000), where 2 can just be seen.
namespace palette {

inline constexpr QRgb kNavy = 0xff004a70;
inline constexpr QRgb kSky = 0xff2eb9ff;
inline constexpr QRgb kGreen = 0xff27995d;
inline constexpr QRgb kViolet = 0xff8800fa;
inline constexpr QRgb kMauve = 0xffae77a6;
inline constexpr QRgb kMaroon = 0xff881a1c;
inline constexpr QRgb kRed = 0xffff1c00;

inline constexpr QRgb kEdge = 0xffd8d8d8; ///< around a colour on a ground that may be dark

inline constexpr QRgb kOthers = 0xffb4b4b4;  ///< what is not told apart any further
inline constexpr QRgb kUnknown = 0xff6a6a6a; ///< what has no value

/// Without an order; the last ones look most like a warning.
inline constexpr std::array<QRgb, 7> kDistinct{kNavy, kSky, kGreen, kViolet, kMauve, kMaroon, kRed};

/// From the best value to the worst, darker to lighter; differ by more than 18 with the next one.
inline constexpr std::array<QRgb, 4> kRising{0xff003c64, 0xff4b54e6, 0xff4da5b1, 0xffa8b29b};
inline constexpr QRgb kBeyond = kRed; ///< worse than allowed

} // namespace palette
