#pragma once

#include "protocol/Outcome.h"

class CoordCompare;
class ProgressReporter;

/// Writes a comparison as CSV: the stored fields of each result under the captions of survey files,
/// then its transformed coordinates, the differences with 4 decimals, and why a transformation
/// failed.
/// \param degreeFormat see AngleText
/// \returns why the file cannot be written; it is then as it was before
Outcome writeCoordCompareCsv(const QString& path, const CoordCompare& comparison, int degreeFormat,
                             ProgressReporter& progress);
