#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Replaces "$(APP_DIR)" in `path` by the folder of the running executable, resolves "." and ".."
/// steps, and writes the result to `buffer` as NUL-terminated text.
/// \returns false, with an empty text in the buffer, when the result does not fit into `size` bytes
bool process_resolve_path(std::string_view path, char* buffer, std::size_t size);

namespace basalt {

/// The same, of any length.
[[nodiscard]] std::string resolvedPath(std::string_view path);

} // namespace basalt
