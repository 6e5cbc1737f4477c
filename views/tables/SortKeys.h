#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

// Rows in the order of a column. Every value becomes a whole number once, and these are sorted.

/// A row, and a number that is ordered as the row's value.
struct SortItem
{
    std::uint64_t key = 0;
    std::uint32_t row = 0;
};

/// No number (NaN); it stands last in both directions.
inline constexpr std::uint64_t kNoValueKey = ~std::uint64_t(0);

[[nodiscard]] std::uint64_t sortKey(double value);
[[nodiscard]] std::uint64_t sortKey(std::int64_t value);

/// Sorts by the keys. Items of one key keep their order, in both directions.
void sortByKeys(std::vector<SortItem>& items, bool isDescending);

/// Sorts by the bytes of names, with keys of its own.
/// \param nameOf the name of a row; it stays where it is
void sortByNames(std::vector<SortItem>& items, bool isDescending,
                 const std::function<std::string_view(std::uint32_t row)>& nameOf);

/// Sorts by texts as the program's language does, with keys of its own. Each text is looked at
/// once; made for columns with few different ones. \param textOf the text of a row, valid until the
/// next call
void sortByTexts(std::vector<SortItem>& items, bool isDescending,
                 const std::function<std::string_view(std::uint32_t row)>& textOf);
