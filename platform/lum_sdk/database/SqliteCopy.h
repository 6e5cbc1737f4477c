#pragma once

#include <string>

struct sqlite3;

namespace lum {

/// Copies the database of a connection to the file `to` and replaces an existing one. Other
/// connections cannot change the database meanwhile.
/// \returns an empty text, or why it failed; then `to` may be incomplete
[[nodiscard]] std::string copyDatabase(sqlite3* from, const std::string& to);

} // namespace lum
