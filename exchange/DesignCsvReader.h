#pragma once

#include "model/TakenOver.h"
#include "protocol/Outcome.h"

#include <string_view>

class ProgressReporter;
class QString;
struct ImportSummary;

/// Reads design points from lines of eight fields: point number, line number, north, east,
/// elevation, azimuth, type, status. Names keep the blanks around them, further fields are passed
/// over, and a line that cannot be read is skipped. The points are added to `points`, over those
/// with their line and number.
/// \returns why the file cannot be read; `points` is then as it was before
/// \param undo filled when it is not null
Outcome readDesignCsv(const QString& path, DesignPoints& points, ProgressReporter& progress,
                      ImportSummary& summary, TakenOver<DesignPoints>* undo = nullptr);

/// Whether a line holds a design point, in the eight fields of an import or the nine of an export.
[[nodiscard]] bool isDesignRow(std::string_view line);
