#pragma once

#include "protocol/Outcome.h"

class IDictionary;

/// The project file: a dictionary as XML that describes the project as a whole.
namespace ProjectFile {

inline constexpr const char* kPath = "project_path"; ///< the folder where it was made
inline constexpr const char* kVersion = "project_create_in_software_version";
inline constexpr const char* kTime = "project_time"; ///< when it was made, local time

/// Adds the entries of the file to `project`; nothing changes when the file is missing or was
/// written by another program.
[[nodiscard]] Outcome read(const QString& path, IDictionary& project);

/// Replaces the whole file; when that fails, the old one stays.
[[nodiscard]] Outcome write(const QString& path, const IDictionary& project);

} // namespace ProjectFile
