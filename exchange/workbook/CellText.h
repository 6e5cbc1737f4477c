#pragma once

#include <QString>

#include <string>
#include <string_view>

// Texts as the cells of a workbook take them.

/// A copy of the text that Excel opens: valid UTF-8 of at most 32,767 characters.
void toCellText(std::string_view utf8, std::string& text);

/// How many digits of the same font are about as wide; a Chinese character counts double.
[[nodiscard]] double textWidth(std::string_view utf8);

/// The lines that a text takes in a cell that breaks it between words.
/// \param width of the cell, as `textWidth`
[[nodiscard]] int lineCount(const QString& text, double width);

/// The width of its widest word, as `textWidth`.
[[nodiscard]] double longestWord(const QString& text);
