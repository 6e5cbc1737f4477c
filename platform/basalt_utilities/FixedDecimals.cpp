#include "basalt_utilities/FixedDecimals.h"

#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"
#include "basalt_utilities/PlainDecimal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <type_traits>

namespace basalt {

namespace {

constexpr double kLargestScaled = 1e15;

char* writeExactly(char* to, double value, int decimals)
{
    return std::to_chars(to, to + kFixedSize, value, std::chars_format::fixed, decimals).ptr;
}

/// Rounds `magnitude` to so many decimals and gives all its digits as one integer.
/// \returns false when the digits could be wrong: for large numbers, next to a tie, and for
///          infinity and NaN
bool roundQuickly(double magnitude, int decimals, std::uint64_t& digits)
{
    const double scaled = magnitude * kPowersOfTen[static_cast<std::size_t>(decimals)];
    if (!(scaled < kLargestScaled))
        return false;
    digits = static_cast<std::uint64_t>(scaled);
    const double fraction = scaled - static_cast<double>(digits);
    // The product has a rounding error of half a unit in its last place at most: next to a tie that
    // decides which way to round.
    if (std::fabs(fraction - 0.5) <= scaled * 0x1p-51)
        return false;
    digits += fraction > 0.5 ? 1U : 0U;
    return true;
}

/// Reads a text of digits and at most one point when the result is exact.
/// \returns false, with `value` as it was, for any other text
bool readPlain(std::string_view text, double& value)
{
    const char* c = text.data();
    const char* const end = c + text.size();
    double number = 0;
    if (!takePlainDecimal(c, end, number) || c != end)
        return false;
    value = number;
    return true;
}

template <class Number>
std::optional<Number> wholeNumber(std::string_view text)
{
    text = trimmed(text);
    if (text.substr(0, 1) == "+") {
        text.remove_prefix(1);
        if (text.substr(0, 1) == "-")
            return std::nullopt;
    }
    Number value = 0;
    const char* const end = text.data() + text.size();
    const auto [last, fault] = std::from_chars(text.data(), end, value);
    if (fault != std::errc() || last != end)
        return std::nullopt;
    if constexpr (std::is_floating_point_v<Number>) {
        if (!std::isfinite(value)) // from_chars also reads "nan" and "inf"
            return std::nullopt;
    }
    return value;
}

} // namespace

char* writeFixed(char* to, double value, int decimals)
{
    std::uint64_t digits = 0;
    if (!roundQuickly(std::fabs(value), decimals, digits))
        return writeExactly(to, value, decimals);
    if (std::signbit(value))
        *to++ = '-';
    if (decimals == 0)
        return std::to_chars(to, to + kFixedSize, digits).ptr;
    const auto unit = static_cast<std::uint64_t>(kPowersOfTen[static_cast<std::size_t>(decimals)]);
    char* const point = std::to_chars(to, to + kFixedSize, digits / unit).ptr;
    digits %= unit;
    *point = '.';
    for (char* place = point + decimals; place != point; --place) {
        *place = static_cast<char>('0' + digits % 10);
        digits /= 10;
    }
    return point + 1 + decimals;
}

double readDecimal(std::string_view text)
{
    double value = 0;
    return readPlain(text, value) ? value : parseNumber(text);
}

std::optional<double> wholeDecimal(std::string_view text)
{
    double value = 0;
    if (readPlain(text, value))
        return value;
    return wholeNumber<double>(text);
}

std::optional<std::int32_t> wholeInteger(std::string_view text)
{
    return wholeNumber<std::int32_t>(text);
}

std::optional<std::int64_t> wholeInteger64(std::string_view text)
{
    return wholeNumber<std::int64_t>(text);
}

} // namespace basalt
