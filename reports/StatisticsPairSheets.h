#pragma once

class ReportSteps;
class Workbook;
struct ReportInput;
struct StatisticsFigures;

/// Adds the sheets "Resurveys" and "Repeats": each point that was measured twice with both
/// measurements, and the figures of the differences below them.
void addStatisticsPairSheets(Workbook& book, const ReportInput& input,
                             const StatisticsFigures& figures, ReportSteps& steps);
