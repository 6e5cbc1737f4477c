#pragma once

#include <iosfwd>
#include <string>
#include <vector>

/// Which file may include which: the floors of the program, as a table in the source.
///
/// `file` is a path from the repository root, such as "quality/ui/OffsetDialog.cpp".
/// \returns one "file:line: reason" a fault, in the order of the lines
[[nodiscard]] std::vector<std::string> includeFaults(const std::string& file, std::istream& text);

/// What is wrong with one line of `file`; empty when nothing is.
[[nodiscard]] std::string includeFault(const std::string& file, const std::string& line);
