#pragma once

#include <string>
#include <string_view>

/// A text of a database row as UTF-8. Earlier programs wrote it in the code page of their computer:
/// a text that is not well-formed UTF-8 is read as GB18030, and one that is not GB18030 either as
/// Latin-1, so that different texts stay different.
[[nodiscard]] std::string rowText(std::string_view text);
