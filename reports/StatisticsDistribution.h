#pragma once

#include "exchange/workbook/Chart.h"

class Workbook;
struct StatisticsFigures;

/// Adds the sheet "Distribution": how many points lie how far from their design.
/// \returns its histogram
[[nodiscard]] Chart addStatisticsDistribution(Workbook& book, const StatisticsFigures& figures);
