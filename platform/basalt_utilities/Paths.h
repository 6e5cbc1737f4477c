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

/// The folder of the user's log, "$XDG_STATE_HOME/Tarvona/Skyquill" (by default under
/// "~/.local/state"). Not made here.
[[nodiscard]] std::string stateFolder();

/// The folder of the user's settings, "$XDG_CONFIG_HOME/Tarvona/Skyquill" (by default under
/// "~/.config"). Not made here.
[[nodiscard]] std::string settingsFolder();

} // namespace basalt
