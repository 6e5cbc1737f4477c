#pragma once

#include "exchange/workbook/Chart.h"

class ReportSteps;
class Workbook;
struct StatisticsFigures;

/// Adds the sheets "Lines", "Days", "Rovers", "Surveyors" and "Bases", all with the same columns.
/// \returns the curve of progress, of the days; without series when nothing was staked on a day
[[nodiscard]] Chart addStatisticsGroupSheets(Workbook& book, const StatisticsFigures& figures,
                                             ReportSteps& steps);
