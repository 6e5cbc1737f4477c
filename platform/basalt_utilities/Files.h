#pragma once

#include <string>

// File operations by UTF-8 path. Each returns whether it succeeded; why one did not stands in the
// log, with the operation and the path.

/// True for an existing file or folder.
[[nodiscard]] bool file_system_check_file(const std::string& path);

/// Copies a file, over an existing one; a copy that fails leaves no half file under `to`.
bool file_system_copy_file(const std::string& from, const std::string& to);

/// True also when there was no such file.
bool file_system_delete_file(const std::string& path);

/// Makes the folder and those above it; true also when it stands already.
bool file_system_create_dir(const std::string& path);
