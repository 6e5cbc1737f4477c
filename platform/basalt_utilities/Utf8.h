#pragma once

#include <cstddef>
#include <string_view>

namespace basalt {

/// Whether `text` is well-formed UTF-8: no stray or missing bytes, no overlong forms, surrogates or
/// code points above U+10FFFF.
[[nodiscard]] bool isUtf8(std::string_view text);

/// What a text holds beside ASCII.
struct Utf8Count
{
    std::size_t characters = 0; ///< well formed
    std::size_t faults = 0;     ///< bytes that belong to none
};

/// Adds what `text`, whole characters, holds.
void countUtf8(std::string_view text, Utf8Count& count);

} // namespace basalt
