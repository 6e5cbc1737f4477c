#pragma once

#include "protocol/Outcome.h"

class QString;
struct ReportInput;

/// The workbook "Quality statistics": how much is staked, how well, and how lines, days, rovers,
/// surveyors and bases differ.
Outcome writeQualityStatistics(const QString& path, const ReportInput& input);
