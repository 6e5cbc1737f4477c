#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

// Numbers as decimal text, where a million of them are written or read. `writeFixed`,
// `writeGeneral` and `readDecimal` give exactly what `formatFixed`, `formatGeneral` and
// `parseNumber` give, some three times as quickly.
namespace basalt {

/// What `writeFixed` may need: 309 digits, sign, point and decimals.
inline constexpr std::size_t kFixedSize = 336;

/// Writes `value` in fixed notation, as "%.*f", without a closing NUL.
/// \param to at least `kFixedSize` bytes
/// \param decimals 0 to 9
/// \returns the end of what was written
char* writeFixed(char* to, double value, int decimals);

/// Writes `value` with six significant digits, as "%g" and `formatGeneral`, without a closing NUL.
/// \param to at least `kFixedSize` bytes
/// \returns the end of what was written
char* writeGeneral(char* to, double value);

/// The number that `text` begins with, as `parseNumber` reads it.
[[nodiscard]] double readDecimal(std::string_view text);

/// The decimal number that `text` is as a whole, blanks around it let aside; nothing for any other
/// text ("12m", "0x10", "nan"), and for a number that no double can hold.
[[nodiscard]] std::optional<double> wholeDecimal(std::string_view text);

/// The same for a decimal integer of 32 bits ("12.0" is none).
[[nodiscard]] std::optional<std::int32_t> wholeInteger(std::string_view text);

/// And of 64 bits.
[[nodiscard]] std::optional<std::int64_t> wholeInteger64(std::string_view text);

} // namespace basalt
