#include "basalt_utilities/FixedDecimals.h"

#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"
#include "basalt_utilities/PlainDecimal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace basalt {

namespace {

constexpr double kLargestScaled = 1e15;

char* writeExactly(char* to, double value, int decimals)
{
    return std::to_chars(to, to + kFixedSize, value, std::chars_format::fixed, decimals).ptr;
}

/// Rounds `magnitude` to so many decimals, all digits as one integer.
/// \returns false where only the exact way is safe: large numbers, ties, and what is no number
bool roundQuickly(double magnitude, int decimals, std::uint64_t& digits)
{
    const double scaled = magnitude * kPowersOfTen[static_cast<std::size_t>(decimals)];
    if (!(scaled < kLargestScaled))
        return false;
    digits = static_cast<std::uint64_t>(scaled);
    const double fraction = scaled - static_cast<double>(digits);
    // The product is off by half a unit in its last place at most: next to a tie it may lie.
    if (std::fabs(fraction - 0.5) <= scaled * 0x1p-51)
        return false;
    digits += fraction > 0.5 ? 1U : 0U;
    return true;
}

/// "00" to "99".
constexpr auto kPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

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

char* writeGeneral(char* to, double value)
{
    constexpr std::size_t kDigits = 6;
    std::size_t whole = 1;
    for (double power = 10; power <= value && whole < kDigits; power *= 10)
        ++whole;
    std::uint64_t digits = 0;
    if (!(value >= 1) || whole == kDigits || // what may need an exponent, or is not a number
        !roundQuickly(value, static_cast<int>(kDigits - whole), digits) || digits >= 1000000)
        return std::to_chars(to, to + kFixedSize, value, std::chars_format::general, kDigits).ptr;

    // Behind the place of the point, which then moves in between.
    auto rest = static_cast<std::uint32_t>(digits);
    for (std::size_t end = kDigits; end != 0; end -= 2, rest /= 100)
        std::memcpy(to + end - 1, &kPairs[std::size_t{rest % 100} * 2], 2);
    for (std::size_t i = 0; i < whole; ++i)
        to[i] = to[i + 1];
    to[whole] = '.';
    char* end = to + kDigits + 1;
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
