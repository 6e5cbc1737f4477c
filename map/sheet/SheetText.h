#pragma once

#include <QFont>
#include <QStringList>

/// The sizes of texts on A4, pixels of 1/96 inch; larger paper has larger ones.
namespace sheettext {
inline constexpr double kTitle = 18;
inline constexpr double kCorner = 11; ///< of legend, scale bar and what else stands on the map
inline constexpr double kName = 10;   ///< of points and lines; the same on all paper
inline constexpr double kLabel = 9.5; ///< of coordinates
inline constexpr double kField = 11;
inline constexpr double kCaption = 9; ///< of fields
} // namespace sheettext

/// The font of a sheet. It shares nothing with other fonts, so that any thread may use it.
/// \param pixels its size, of 1/96 inch
[[nodiscard]] QFont sheetFont(double pixels, bool isBold = false);

/// A text in lines of this width. A word that is longer than a line is cut between two letters, and
/// what has no room in the last line is replaced by "...", there where `elide` says.
[[nodiscard]] QStringList wrapped(const QString& text, const QFont& font, double width, int lines,
                                  Qt::TextElideMode elide = Qt::ElideRight);
