#pragma once

#include <QFont>
#include <QStringList>

/// The font of a sheet. It shares nothing with other fonts, so that any thread may use it.
/// \param pixels its size, of 1/96 inch
[[nodiscard]] QFont sheetFont(double pixels, bool isBold = false);

/// A text in lines of this width. A word that is longer than a line is cut between two letters, and
/// what has no room in the last line is replaced by "...".
[[nodiscard]] QStringList wrapped(const QString& text, const QFont& font, double width, int lines);
