#pragma once

#include "protocol/Outcome.h"

class QString;
struct ReportInput;

/// Writes the workbook "Rover log": a summary of days by rovers, every session of a rover, the gaps
/// in its work, the bases, and the limits. A notice tells how many there are.
Outcome writeRoverLog(const QString& path, const ReportInput& input);
