#pragma once

#include "basalt_utilities/IDictionary.h"

#include <string>

class QByteArray;
class QString;

// A dictionary as an XML file:
//
//     <dictionary>
//       <entry key="re_code" value="F"/>
//       <entry key="note" value="5Lit" encoding="base64"/>
//     </dictionary>
//
// Order, keys and values come back byte for byte; what XML cannot hold (control characters, text
// that is not UTF-8) is written in base64.

/// Reads the file into `dictionary`; entries of the same keys are replaced. When the file is
/// missing, malformed or not a dictionary, nothing changes, and the log names file, line and
/// reason.
bool xml_to_dictionary(const std::string& path, IDictionary& dictionary);

/// Replaces the file by `lum::writeWholeFile`. A failure is logged with its reason.
bool dictionary_to_xml(const IDictionary& dictionary, const std::string& path);

namespace lum {

/// As `xml_to_dictionary`, for callers that tell the user the reason.
/// \returns an empty text, or why the file cannot be read and in which line
[[nodiscard]] QString readDictionaryFile(const std::string& path, IDictionary& dictionary);

/// Reads `xml` into `dictionary`, completely or not at all.
/// \returns an empty text, or what is wrong and in which line
[[nodiscard]] QString readDictionary(const QByteArray& xml, IDictionary& dictionary);

[[nodiscard]] QByteArray writeDictionary(const IDictionary& dictionary);

} // namespace lum
