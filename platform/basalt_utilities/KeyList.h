#pragma once

#include "basalt_utilities/IDictionary.h"

#include <string>
#include <string_view>

/// Reads a key list, "key=value" pairs joined by `separator`, into `dictionary`.
///
/// A value that begins with `quote` runs to the closing one and may hold the separator; a doubled
/// quote inside stands for one. Blanks around a key are dropped, a value is taken as it stands,
/// empty items are passed over, and a later pair replaces an earlier one of the same key. The first
/// faulty item (no mark, an empty key, an unclosed quote, text behind a closing quote) is reported
/// in the log with the list's beginning; the rest is read all the same: an unclosed value runs to
/// the end.
/// What the dictionary held before stays.
/// \returns whether every item was well formed
bool csa_to_dictionary(IDictionary& dictionary, std::string_view text, char mark = '=',
                       char separator = ',', char quote = '"');

/// The reverse: every entry in order, values quoted where reading back needs it.
[[nodiscard]] std::string dictionary_to_csa(const IDictionary& dictionary, char mark = '=',
                                            char separator = ',', char quote = '"');

/// Cuts the next word off `rest`, up to `separator` or the end, and drops the separator.
/// Words may be empty; `rest` is empty after the last one.
std::string_view next_word3(std::string_view& rest, char separator);

namespace basalt {

/// `value`, enclosed in quotes when a key list with this separator could not hold it bare.
[[nodiscard]] std::string quotedValue(std::string_view value, char separator = ',',
                                      char quote = '"');

/// `text` without the blanks and line ends at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

} // namespace basalt
