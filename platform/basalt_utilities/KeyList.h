#pragma once

#include "basalt_utilities/IDictionary.h"

#include <string>
#include <string_view>

/// Reads a key list, "key=value" pairs joined by `separator`, into `dictionary`.
///
/// A value that begins with `quote` runs to the closing one and may hold the separator; a doubled
/// quote inside stands for one. Blanks around a key are dropped, those of a value are kept,
/// empty items are skipped, and a later pair replaces an earlier one of the same key. The first
/// faulty item (no mark, an empty key, an unclosed quote, text behind a closing quote) is reported
/// in the log with the list's beginning, and reading goes on; an unclosed value runs to the end.
/// Other entries of the dictionary stay.
/// \returns whether every item was well formed
bool csa_to_dictionary(IDictionary& dictionary, std::string_view text, char mark = '=',
                       char separator = ',', char quote = '"');

/// Writes every entry in order, with values quoted where reading back needs it.
[[nodiscard]] std::string dictionary_to_csa(const IDictionary& dictionary, char mark = '=',
                                            char separator = ',', char quote = '"');

/// Cuts the next word off `rest`, up to `separator` or the end, and drops the separator.
/// Words may be empty; `rest` is empty after the last one.
std::string_view next_word3(std::string_view& rest, char separator);

namespace basalt {

/// `value`, enclosed in quotes when a key list with this separator could not be read back without.
[[nodiscard]] std::string quotedValue(std::string_view value, char separator = ',',
                                      char quote = '"');

/// `text` without the blanks and line ends at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

} // namespace basalt
