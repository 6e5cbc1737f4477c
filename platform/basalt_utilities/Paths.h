#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Resolves "$(APP_DIR)" in `path` to the folder of the running executable, and "." and ".." steps
/// with it, into `buffer` as NUL-terminated text.
/// \returns false, with an empty text in the buffer, when the result does not fit into `size` bytes
bool process_resolve_path(std::string_view path, char* buffer, std::size_t size);

namespace basalt {

/// The same without a limit.
[[nodiscard]] std::string resolvedPath(std::string_view path);

} // namespace basalt
