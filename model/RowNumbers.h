#pragma once

#include "basalt_utilities/IDictionary.h"

#include <cstdint>

/// Where the rows like `row` have the column `key`; their size when they have none.
[[nodiscard]] std::size_t columnPlace(const IDictionary& row, std::string_view key);

/// The integer that `text` begins with, a number's decimals cut off; 0 when it begins with none.
[[nodiscard]] std::int64_t readInteger64(std::string_view text);
