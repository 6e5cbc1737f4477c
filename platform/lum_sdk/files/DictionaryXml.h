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

/// Reads the file into `dictionary`, over what stands there. All or nothing: when the file is
/// missing, unreadable, malformed or something else than a dictionary, nothing changes, and the log
/// names file, line and reason.
bool xml_to_dictionary(const std::string& path, IDictionary& dictionary);

/// Writes aside and renames: a crash or a full disk never leaves half a file. Why it failed stands
/// in the log.
bool dictionary_to_xml(const IDictionary& dictionary, const std::string& path);

namespace lum {

/// As `xml_to_dictionary`, for whom tells the user.
/// \returns an empty text, or why the file cannot be read and in which line
[[nodiscard]] QString readDictionaryFile(const std::string& path, IDictionary& dictionary);

/// Reads `xml` into `dictionary`, all or nothing.
/// \returns an empty text, or what is wrong and in which line
[[nodiscard]] QString readDictionary(const QByteArray& xml, IDictionary& dictionary);

[[nodiscard]] QByteArray writeDictionary(const IDictionary& dictionary);

} // namespace lum
