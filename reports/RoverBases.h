#pragma once

#include "quality/statistics/RoverLog.h"

class QString;
class ReportSteps;
class Workbook;

/// Whether results put the base elsewhere. Never of results that name no base, since they may be of
/// several ones.
[[nodiscard]] bool hasMoved(const statistics::BaseUse& base);

/// Adds the sheet of the bases, a row each.
/// \param sessions tell which rovers used them
/// \param planeUnit the symbol of the unit of plane coordinates
/// \returns false when the report is to stop
[[nodiscard]] bool writeRoverBases(Workbook& book, const std::vector<statistics::BaseUse>& bases,
                                   const std::vector<statistics::RoverSession>& sessions,
                                   const QualityLimits& limits, const QString& planeUnit,
                                   ReportSteps& steps);
