#include "basalt_utilities/FixedDecimals.h"

#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"
#include "basalt_utilities/PlainDecimal.h"

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

/// Reads digits with a point at most, where the result is exact; false leaves `value` alone.
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
        if (!std::isfinite(value)) // "nan" and "inf" are words to from_chars
            return std::nullopt;
    }
    return value;
}

} // namespace

char* writeFixed(char* to, double value, int decimals)
{
    const double scaled = std::fabs(value) * kPowersOfTen[static_cast<std::size_t>(decimals)];
    if (!(scaled < kLargestScaled)) // also what is not a number
        return writeExactly(to, value, decimals);
    auto digits = static_cast<std::uint64_t>(scaled);
    const double fraction = scaled - static_cast<double>(digits);
    // The product is off by half a unit in its last place at most: next to a tie it may lie.
    if (std::fabs(fraction - 0.5) <= scaled * 0x1p-51)
        return writeExactly(to, value, decimals);
    digits += fraction > 0.5 ? 1U : 0U;
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

char* writeGeneral(char* to, double value)
{
    constexpr int kDigits = 6;
    if (!(value >= 1 && value < 99999)) // what may need an exponent, or is not a number
        return std::to_chars(to, to + kFixedSize, value, std::chars_format::general, kDigits).ptr;
    int decimals = kDigits - 1;
    for (std::int64_t power = 10; power <= static_cast<std::int64_t>(value); power *= 10)
        --decimals;
    char* end = writeFixed(to, value, decimals);
    while (end[-1] == '0')
        --end;
    return end[-1] == '.' ? end - 1 : end;
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
