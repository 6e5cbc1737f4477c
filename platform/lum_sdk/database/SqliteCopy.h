#pragma once

#include <string>

struct sqlite3;

namespace lum {

/// Copies the database of a connection into a new file, over what stands there. Nobody else can
/// change the database meanwhile.
/// \returns an empty text, or why it failed; half a copy may stand there then
[[nodiscard]] std::string copyDatabase(sqlite3* from, const std::string& to);

} // namespace lum
