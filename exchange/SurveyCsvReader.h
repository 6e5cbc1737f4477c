#pragma once

#include "model/PointLines.h"

class ProgressReporter;
class QString;
struct ImportSummary;

/// Reads survey points from a CSV file: a heading with the captions of its columns, in any order,
/// then a point a line; see SurveyRowReader. Points are added to `points` as `SurveyPointFiler`
/// files them. Without a heading nothing is read, which is no failure.
/// \returns false, with the reason in `summary`, when the file cannot be read
bool readSurveyCsv(const QString& path, SurveyPoints& points, ProgressReporter& progress,
                   ImportSummary& summary);
