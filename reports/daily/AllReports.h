#pragma once

#include "reports/ReportKinds.h"

#include <string>

/// All reports, workbooks first, in the order in which they are offered.
[[nodiscard]] std::span<const ReportKind> allReports();

/// Null when no report has this name.
[[nodiscard]] const ReportKind* findReport(std::string_view name);

/// The names of all reports.
[[nodiscard]] std::string reportNames(std::string_view separator);
