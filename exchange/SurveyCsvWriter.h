#pragma once

#include "model/PointLines.h"

class ProgressReporter;
class QString;
class QStringList;

/// What the user chose for a survey CSV file.
struct SurveyCsvChoice
{
    const QStringList& captions; ///< of the columns, translated, in their order
    int degreeFormat = 0;        ///< see AngleText
};

/// Writes the survey points of `lines`, in the order of that list, with a heading; see
/// SurveyRowWriter. Lines that do not exist are passed over.
/// \returns an empty text, or why the file could not be written; it then stands as it was
[[nodiscard]] QString writeSurveyCsv(const QString& path, const SurveyPoints& points,
                                     const QStringList& lines, const SurveyCsvChoice& choice,
                                     ProgressReporter& progress);
