#pragma once

#include "protocol/Outcome.h"

class IDictionary;

/// The two parameter files of a project folder, "qc_param.ini" and "design_param.ini". Both hold a
/// dictionary as XML, in spite of their ending.
namespace ParameterFiles {

// Appended to the path of the project folder.
inline constexpr const char* kQualityFile = "/qc_param.ini";
inline constexpr const char* kDesignFile = "/design_param.ini";

/// Adds the entries of the files to the dictionaries. When one file cannot be read, neither
/// dictionary changes.
[[nodiscard]] Outcome read(const QString& folder, IDictionary& quality, IDictionary& design);

/// Writes both.
[[nodiscard]] Outcome write(const QString& folder, const IDictionary& quality,
                            const IDictionary& design);

/// Makes the design parameters the template of new projects. An installation that cannot be written
/// is no failure: the log notes it once.
void writeTemplate(const IDictionary& design);

} // namespace ParameterFiles
