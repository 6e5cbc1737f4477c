#pragma once

#include <string_view>

namespace basalt {

/// Whether `text` is well-formed UTF-8: no stray or missing bytes, no overlong forms, surrogates or
/// code points above U+10FFFF.
[[nodiscard]] bool isUtf8(std::string_view text);

} // namespace basalt
