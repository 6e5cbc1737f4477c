#pragma once

#include "protocol/Outcome.h"

class QString;
struct ReportInput;

/// The workbook "Quality check": how many results failed each test, every result that failed with
/// what it was measured like, and a verdict on each line. All results are judged anew by the limits
/// in force.
Outcome writeQualityReport(const QString& path, const ReportInput& input);
