#pragma once

class ReportSteps;
class Workbook;
struct QualityFindings;

/// Adds the sheet "Lines": how far each line is staked, how many of its results passed, its worst
/// fault, and a verdict in words.
/// \returns false when the report is to stop
bool addLinesSheet(Workbook& book, const QualityFindings& findings, ReportSteps& steps);
