#include "basalt_utilities/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace basalt {

namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

/// Cuts leading blanks and one sign; true when the sign is a minus.
bool cutSign(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    if (text.empty() || (text.front() != '-' && text.front() != '+'))
        return false;
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

/// What strtod gives for a number that no double can hold: 0 when it is too small, which its
/// exponent tells, infinity when it is too large.
double outOfRange(std::string_view number)
{
    const std::size_t exponent = number.find_first_of("eEpP");
    const bool tiny = exponent != std::string_view::npos
                          ? number.substr(exponent + 1, 1) == "-"
                          : number.substr(0, 1) == "0" || number.substr(0, 1) == ".";
    return tiny ? 0.0 : std::numeric_limits<double>::infinity();
}

std::optional<double> parseUnsigned(std::string_view text)
{
    auto format = std::chars_format::general;
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        format = std::chars_format::hex;
        text.remove_prefix(2);
    }
    if (text.empty() || text.front() == '-' || text.front() == '+')
        return std::nullopt;
    double value = 0;
    const auto [end, fault] =
        std::from_chars(text.data(), text.data() + text.size(), value, format);
    if (fault == std::errc::result_out_of_range)
        return outOfRange({text.data(), static_cast<std::size_t>(end - text.data())});
    return fault == std::errc() ? std::optional<double>(value) : std::nullopt;
}

template <class... Format>
std::string format(double value, Format... how)
{
    std::array<char, 400> buffer{}; // 309 digits before the point, and the decimals
    const auto [end, fault] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, how...);
    return fault == std::errc() ? std::string(buffer.data(), end) : std::string();
}

} // namespace

double parseNumber(std::string_view text)
{
    const bool negative = cutSign(text);
    const auto value = parseUnsigned(text);
    if (!value)
        return 0; // never -0
    return negative ? -*value : *value;
}

int parseInteger(std::string_view text)
{
    const bool negative = cutSign(text);
    if (text.empty() || text.front() < '0' || text.front() > '9')
        return 0;
    long long value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        value = std::numeric_limits<long long>::max();
    if (negative)
        value = -value;
    constexpr long long kLowest = std::numeric_limits<int>::min();
    constexpr long long kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(value < kLowest ? kLowest : value > kHighest ? kHighest : value);
}

std::string formatShortest(double value)
{
    const double magnitude = std::fabs(value);
    if (magnitude >= 1e-6 && magnitude < 1e15)
        return format(value, std::chars_format::fixed); // 500000 rather than 5e+05
    return format(value);
}

std::string formatFixed(double value, int decimals)
{
    return format(value, std::chars_format::fixed, decimals);
}

std::string formatGeneral(double value, int significantDigits)
{
    return format(value, std::chars_format::general, significantDigits);
}

} // namespace basalt
