#pragma once

#include "protocol/Outcome.h"

class CoordCompare;
class ProgressReporter;

/// Writes a comparison as a workbook: a table in Chinese with its title, for the people who compare
/// coordinates in the field.
/// \param degreeFormat 0 for latitudes and longitudes as numbers, otherwise texts, see AngleText
/// \returns why the file cannot be written; it is then as it was before
Outcome writeCoordCompareWorkbook(const QString& path, const CoordCompare& comparison,
                                  int degreeFormat, ProgressReporter& progress);
