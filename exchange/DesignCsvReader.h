#pragma once

#include "model/PointLines.h"

class ProgressReporter;
class QString;
struct ImportSummary;

/// Reads design points from lines of eight fields: point number, line number, north, east,
/// elevation, azimuth, type, status. Numbers and names are taken as they stand, more fields are let
/// aside, and a line that does not read is skipped. Points are added to `points`, over those with
/// their line and number.
/// \returns false, with the reason in `summary`, when the file cannot be read
bool readDesignCsv(const QString& path, DesignPoints& points, ProgressReporter& progress,
                   ImportSummary& summary);
