#pragma once

class IDictionary;
class QString;

/// The project file: what is said about the project as a whole, a dictionary as XML.
namespace ProjectFile {

inline constexpr const char* kPath = "project_path"; ///< the folder where it was made
inline constexpr const char* kVersion = "project_create_in_software_version";
inline constexpr const char* kTime = "project_time"; ///< when it was made, local time

/// \returns false, with the dictionary as it was, for a file that is missing or of another program
bool read(const QString& path, IDictionary& project);

/// Whole or not at all; why it failed stands in the log.
[[nodiscard]] bool write(const QString& path, const IDictionary& project);

} // namespace ProjectFile
