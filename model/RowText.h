#pragma once

#include <string>
#include <string_view>

/// A text of a database row as UTF-8. Earlier programs wrote the code page of their computer: what
/// is not well-formed UTF-8 is taken as GB18030, and what is not that either, byte by byte, as
/// Latin-1, so that texts that differ still do.
[[nodiscard]] std::string rowText(std::string_view text);
