#pragma once

#include "model/PointLines.h"
#include "model/PointName.h"
#include "protocol/Outcome.h"

#include <vector>

class ProgressReporter;
class QString;
class QStringList;

/// What the user chose for a survey CSV file.
struct SurveyCsvChoice
{
    const QStringList& captions; ///< of the columns, translated, in their order
    int degreeFormat = 0;        ///< see AngleText
};

/// Writes the survey points of `lines`, in the order of that list, below a heading; see
/// SurveyRowWriter. Lines that do not exist are passed over.
/// \returns why the file cannot be written; it is then as it was before
Outcome writeSurveyCsv(const QString& path, const SurveyPoints& points, const QStringList& lines,
                       const SurveyCsvChoice& choice, ProgressReporter& progress);

/// The same for single points, in the order of their names; those that do not exist are passed
/// over. Refused when line or point number is not among the columns: no row could be written.
Outcome writeSurveyCsv(const QString& path, const SurveyPoints& points,
                       const std::vector<PointName>& names, const SurveyCsvChoice& choice,
                       ProgressReporter& progress);
