#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// Inline, since a call for each of some ten million numbers would cost as much as reading it.
namespace basalt {

// Each of these powers is an exact double. An integer up to 2^53 divided by one of them is rounded
// once only, so that the quotient is the double nearest to the decimal number.
inline constexpr std::array<double, 23> kPowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                     1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                     1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Appends the digits at `c` to `mantissa`, which overflows when they are many.
/// \returns the end of the digits
inline const char* takeDigits(const char* c, const char* end, std::uint64_t& mantissa)
{
    for (; c != end; ++c) {
        const auto digit = static_cast<unsigned char>(*c - '0');
        if (digit > 9)
            break;
        mantissa = mantissa * 10 + digit;
    }
    return c;
}

/// Reads the plain number at `c`: an optional minus, digits, and optionally a point with more
/// digits. On success `c` is moved behind it.
/// \returns false, with `c` where it was, when there is none or when it has too many digits for an
///          exact result
inline bool takePlainDecimal(const char*& c, const char* end, double& value)
{
    constexpr std::size_t kMostDigits = 18; // more could overflow the mantissa
    constexpr std::uint64_t kLargestMantissa = std::uint64_t(1) << 53U;
    const bool isNegative = c != end && *c == '-';
    const char* const first = isNegative ? c + 1 : c;
    std::uint64_t mantissa = 0;
    const char* last = takeDigits(first, end, mantissa);
    auto digits = static_cast<std::size_t>(last - first);
    std::size_t decimals = 0;
    if (digits != 0 && last != end && *last == '.') {
        const char* const fraction = last + 1;
        last = takeDigits(fraction, end, mantissa);
        decimals = static_cast<std::size_t>(last - fraction);
        digits += decimals;
    }
    if (digits == 0 || digits > kMostDigits || mantissa > kLargestMantissa)
        return false;
    const double number = static_cast<double>(mantissa) / kPowersOfTen[decimals];
    value = isNegative ? -number : number;
    c = last;
    return true;
}

} // namespace basalt
