#pragma once

#include <string>

// What makes files survive a power cut. Each returns an empty text, or why it failed.

namespace lum {

/// What was written to the file (or the folder's list of names) is on the disk.
[[nodiscard]] std::string syncFile(const std::string& path);

/// Renames over what stands under `to`, lastingly.
[[nodiscard]] std::string renameFile(const std::string& from, const std::string& to);

/// Removes the file, lastingly; a file that is not there is no failure.
[[nodiscard]] std::string removeFile(const std::string& path);

} // namespace lum
