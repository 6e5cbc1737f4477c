#pragma once

#include "model/TakenOver.h"
#include "protocol/Outcome.h"

class ProgressReporter;
class QString;
struct ImportSummary;

/// Reads survey points from a CSV file: a heading with the captions of its columns, in any order,
/// then one point in each line; see SurveyRowReader. The points are added to `points` as
/// `SurveyPointFiler` does it. A file without a heading gives no points and is no failure.
/// \returns why the file cannot be read; `points` is then as it was before
/// \param undo filled when it is not null
Outcome readSurveyCsv(const QString& path, SurveyPoints& points, ProgressReporter& progress,
                      ImportSummary& summary, TakenOver<SurveyPoints>* undo = nullptr);
