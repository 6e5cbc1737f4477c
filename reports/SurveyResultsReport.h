#pragma once

#include "protocol/Outcome.h"

class QString;
struct ReportInput;

/// The workbook "Survey results": every result with all its fields, the design points that nobody
/// has staked, and how far the results lie from their design.
Outcome writeSurveyResults(const QString& path, const ReportInput& input);
