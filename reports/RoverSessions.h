#pragma once

#include "quality/statistics/RoverLog.h"

class ReportSteps;
class Workbook;

/// Adds the sheet of the sessions, a row each.
/// \returns false when the report is to stop
[[nodiscard]] bool writeRoverSessions(Workbook& book,
                                      const std::vector<statistics::RoverSession>& sessions,
                                      const QualityLimits& limits, ReportSteps& steps);
