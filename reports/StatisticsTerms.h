#pragma once

#include "reports/ReportSheets.h"

/// What the figures of the workbook "Quality statistics" mean, for its sheet "Limits".
[[nodiscard]] std::vector<FigureDefinition> statisticsTerms();
