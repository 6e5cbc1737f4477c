#include "model/RowNumbers.h"

#include "basalt_utilities/Numbers.h"

#include <charconv>
#include <cmath>

std::size_t columnPlace(const IDictionary& row, std::string_view key)
{
    std::size_t place = 0;
    while (place < row.size() && row.keyAt(place) != key)
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
