#pragma once

#include <string>

// File operations by UTF-8 path. Each returns whether it succeeded; a failure is logged with the
// operation, the path and the reason.

/// True for an existing file or folder.
[[nodiscard]] bool file_system_check_file(const std::string& path);

/// Copies a file and replaces an existing one. A copy that fails leaves `to` as it was.
bool file_system_copy_file(const std::string& from, const std::string& to);

/// True also when there was no such file.
bool file_system_delete_file(const std::string& path);

/// Makes the folder and its parents; true also when it exists already.
bool file_system_create_dir(const std::string& path);
