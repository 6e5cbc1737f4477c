#pragma once

#include "quality/statistics/RoverLog.h"

class ReportSteps;
class Workbook;

/// Adds the sheet of the gaps, a row each.
/// \param planeUnitM metres a unit of the plane coordinates
/// \returns false when the report is to stop
[[nodiscard]] bool writeRoverGaps(Workbook& book, const std::vector<statistics::RoverGap>& gaps,
                                  double planeUnitM, ReportSteps& steps);
