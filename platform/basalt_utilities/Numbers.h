#pragma once

#include <string>
#include <string_view>

/// Numbers to text and back without the process locale.
namespace basalt {

/// The number that `text` begins with, by the rule of C's `strtod` in the C locale: leading
/// blanks, a sign, decimal or "0x" digits, an exponent, "inf" and "nan" are read; 0 when there is
/// none; infinite or 0 when it is out of range.
[[nodiscard]] double parseNumber(std::string_view text);

/// The decimal integer that `text` begins with (leading blanks and a sign are read); 0 when there
/// is none; the nearest limit of `int` when it is out of range.
[[nodiscard]] int parseInteger(std::string_view text);

/// The shortest text that reads back as the same value.
[[nodiscard]] std::string formatShortest(double value);

/// Fixed notation, as "%.*f".
[[nodiscard]] std::string formatFixed(double value, int decimals);

/// General notation, as "%.*g".
[[nodiscard]] std::string formatGeneral(double value, int significantDigits = 6);

} // namespace basalt
