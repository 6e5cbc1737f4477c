#pragma once

#include <string>

// File operations that survive a power cut: each returns when the disk has the change. The result
// is an empty text, or why nothing was done.
//
// Some file systems cannot sync a folder, the list of its files' names. There a rename or removal
// is done all the same, the log says so, and only a power cut right after it may undo it.

namespace lum {

/// Brings what was written to the file to the disk.
[[nodiscard]] std::string syncFile(const std::string& path);

/// Brings the names in the folder of `path` to the disk, or says in the log why it cannot.
void syncFolderOf(const std::string& path);

/// Renames a file and replaces an existing one.
[[nodiscard]] std::string renameFile(const std::string& from, const std::string& to);

/// Removes the file; a file that does not exist is no failure.
[[nodiscard]] std::string removeFile(const std::string& path);

} // namespace lum
