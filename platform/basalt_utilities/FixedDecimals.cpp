#include "basalt_utilities/FixedDecimals.h"

#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <type_traits>

namespace basalt {

namespace {

// Every power is exact, and so is the quotient of an integer below 2^53 by it, rounded once.
constexpr std::array<double, 23> kPowers{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                         1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                         1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr double kLargestScaled = 1e15;
constexpr std::uint64_t kLargestMantissa = std::uint64_t(1) << 53;
constexpr std::size_t kMostDigits = 18; // no overflow of the mantissa on the way

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

char* writeExactly(char* to, double value, int decimals)
{
    return std::to_chars(to, to + kFixedSize, value, std::chars_format::fixed, decimals).ptr;
}

/// Reads digits with a point at most, where the result is exact; false leaves `value` alone.
bool readPlain(std::string_view text, double& value)
{
    const char* c = text.data();
    const char* const end = c + text.size();
    const bool isNegative = c != end && *c == '-';
    c += isNegative ? 1 : 0;
    const char* const first = c;
    std::uint64_t mantissa = 0;
    for (; c != end && isDigit(*c); ++c)
        mantissa = mantissa * 10 + static_cast<std::uint64_t>(*c - '0');
    std::size_t decimals = 0;
    std::size_t digits = static_cast<std::size_t>(c - first);
    if (digits != 0 && c != end && *c == '.') {
        const char* const point = c;
        for (++c; c != end && isDigit(*c); ++c)
            mantissa = mantissa * 10 + static_cast<std::uint64_t>(*c - '0');
        decimals = static_cast<std::size_t>(c - point) - 1;
        digits += decimals;
    }
    if (c != end || digits == 0 || digits > kMostDigits || mantissa > kLargestMantissa)
        return false;
    value = static_cast<double>(mantissa) / kPowers[decimals];
    value = isNegative ? -value : value;
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
        if (!std::isfinite(value)) // "nan" and "inf" are words to from_chars
            return std::nullopt;
    }
    return value;
}

} // namespace

char* writeFixed(char* to, double value, int decimals)
{
    const double scaled = std::fabs(value) * kPowers[static_cast<std::size_t>(decimals)];
    if (!(scaled < kLargestScaled)) // also what is not a number
        return writeExactly(to, value, decimals);
    const double whole = std::floor(scaled);
    const double fraction = scaled - whole;
    // The product is off by half a unit in its last place at most: next to a tie it may lie.
    if (std::fabs(fraction - 0.5) <= scaled * 0x1p-51)
        return writeExactly(to, value, decimals);
    auto digits = static_cast<std::uint64_t>(whole) + (fraction > 0.5 ? 1U : 0U);
    if (std::signbit(value))
        *to++ = '-';
    if (decimals == 0)
        return std::to_chars(to, to + kFixedSize, digits).ptr;
    const auto unit = static_cast<std::uint64_t>(kPowers[static_cast<std::size_t>(decimals)]);
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
