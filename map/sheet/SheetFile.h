#pragma once

#include "protocol/Outcome.h"

struct MapSheet;
struct SheetLayout;
struct SheetWatch;

/// The kinds of files that a sheet becomes.
enum class SheetFormat
{
    Pdf,
    Png,
    GeoTiff ///< the map alone, without its frame
};

/// By the ending of a file's name; nothing for another ending.
[[nodiscard]] const SheetFormat* sheetFormatOf(const QString& file);

/// What cannot be written, a sentence; empty for a good sheet.
[[nodiscard]] QString sheetFault(const MapSheet& sheet, SheetFormat format);

/// That the paper shows a part of the area only; empty when it shows all of it.
[[nodiscard]] QString partNotice(const SheetLayout& layout);

/// What the user should know of a sheet: a part is seen only, or an overlay lies beside it. A
/// sentence a line; empty when all is well.
[[nodiscard]] QString sheetNotices(const MapSheet& sheet, const SheetLayout& layout);

/// Writes a sheet; the ending of the file's name chooses the format. What cannot be finished leaves
/// the old file, or none.
/// \returns refused when it was cancelled; failed also when it is written, but parts of the ground
///          are missing; when it is done, a notice tells the scale, and `sheetNotices`
Outcome writeSheet(const MapSheet& sheet, const QString& file, SheetWatch& watch);
