#pragma once

struct Chart;
struct lxw_chart;
struct lxw_workbook;

/// Makes a chart in the workbook, not yet on a sheet; null without memory.
[[nodiscard]] lxw_chart* makeChart(lxw_workbook* book, const Chart& chart);
