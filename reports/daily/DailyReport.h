#pragma once

#include "reports/ReportKinds.h"

/// The report of a day: a PDF of a few pages with the day in numbers, the map, the progress, the
/// statistics and the open problems; see DailyFigures.h for its day.
[[nodiscard]] ReportKind dailyReportKind();

/// Replaces the file at `path`, or leaves it as it was. Needs an application with widgets.
Outcome writeDailyReport(const QString& path, const ReportInput& input);
