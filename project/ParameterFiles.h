#pragma once

class IDictionary;
class QString;

/// The two parameter files of a project folder, "qc_param.ini" and "design_param.ini": dictionaries
/// in XML, whatever their ending says.
namespace ParameterFiles {

// Behind the project folder.
inline constexpr const char* kQualityFile = "/qc_param.ini";
inline constexpr const char* kDesignFile = "/design_param.ini";

/// Reads both, over what the dictionaries hold: both or none.
/// \returns an empty text, or what the user has to know
[[nodiscard]] QString read(const QString& folder, IDictionary& quality, IDictionary& design);

/// Writes both. The design parameters also become the template of new projects; where the
/// installation cannot be written that is logged and skipped.
/// \returns an empty text, or what the user has to know
[[nodiscard]] QString write(const QString& folder, const IDictionary& quality,
                            const IDictionary& design);

} // namespace ParameterFiles
