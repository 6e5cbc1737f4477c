#pragma once

#include <string>

// File operations that survive a power cut: each returns when the disk has the change. The result
// is an empty text, or why the operation failed.

namespace lum {

/// Brings what was written to the file, or the list of names of a folder, to the disk.
[[nodiscard]] std::string syncFile(const std::string& path);

/// Renames a file and replaces an existing one.
[[nodiscard]] std::string renameFile(const std::string& from, const std::string& to);

/// Removes the file; a file that does not exist is no failure.
[[nodiscard]] std::string removeFile(const std::string& path);

} // namespace lum
