#pragma once

#include "basalt_utilities/IDictionary.h"

#include <cstdint>
#include <string>

/// A name of SQL in small letters. To SQL "POINT_NUM" and "point_num" are one name; only the
/// letters of ASCII have two forms.
[[nodiscard]] std::string lowerName(std::string_view name);

/// The place of the column `key` in `row`, in whatever letters; the size of the row when it has no
/// such column.
[[nodiscard]] std::size_t columnPlace(const IDictionary& row, std::string_view key);

/// The number that `text` begins with, without its decimals; 0 when it begins with none, or with
/// one that 64 bits do not hold.
[[nodiscard]] std::int64_t readInteger64(std::string_view text);
