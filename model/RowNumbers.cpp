#include "model/RowNumbers.h"

#include "basalt_utilities/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::string lowerName(std::string_view name)
{
    std::string text(name);
    std::transform(text.begin(), text.end(), text.begin(), lower);
    return text;
}

std::size_t columnPlace(const IDictionary& row, std::string_view key)
{
    const auto isKey = [key](std::string_view name) {
        return std::equal(name.begin(), name.end(), key.begin(), key.end(),
                          [](char a, char b) { return lower(a) == lower(b); });
    };
    std::size_t place = 0;
    while (place < row.size() && !isKey(row.keyAt(place)))
        ++place;
    return place;
}

std::int64_t readInteger64(std::string_view text)
{
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [last, fault] = std::from_chars(text.data(), end, value);
    if (fault == std::errc() && last == end)
        return value;
    // A column declared REAL gives "1700000000000.0".
    const double number = std::trunc(basalt::parseNumber(text));
    constexpr double kLimit = 0x1p63;
    if (!(number >= -kLimit && number < kLimit))
        return 0;
    return static_cast<std::int64_t>(number);
}
