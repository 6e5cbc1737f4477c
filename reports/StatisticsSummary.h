#pragma once

#include "exchange/workbook/Chart.h"

class Page;
struct ReportInput;
struct StatisticsFigures;

/// Writes the page "Summary" of the workbook "Quality statistics".
/// \param title the report's name
/// \param charts those that have series are on the page
void writeStatisticsSummary(Page& page, const QString& title, const ReportInput& input,
                            const StatisticsFigures& figures, std::vector<Chart> charts);

/// How many values of keys, such as rovers and bases, have a shift.
[[nodiscard]] std::size_t countShifts(const StatisticsFigures& figures);
