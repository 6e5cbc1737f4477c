#pragma once

class ReportSteps;
class Workbook;
struct QualityFindings;

/// Adds the sheet "Failures": a row for each result that failed, with an empty column in which the
/// user decides what is to be done.
/// \returns false when the report is to stop
bool addFailuresSheet(Workbook& book, const QualityFindings& findings, ReportSteps& steps);
