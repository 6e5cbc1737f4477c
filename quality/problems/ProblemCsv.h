#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "protocol/Outcome.h"
#include "quality/ResultCsv.h"

#include <span>

struct Problem;

/// Problems as CSV in the columns of ProblemColumns.h; see ResultCsv.h for the form. As shown, but
/// numbers stand without their units, which a spreadsheet would take for text.
void formatProblemCsv(std::span<const Problem* const> problems, ResultCsv kind,
                      basalt::LocalTimes zone, const CsvLineWriter& write);

/// Writes the same into a file, in place of what stands there.
/// \returns when it fails: the detail names the file and the reason in English
Outcome writeProblemCsv(const QString& file, std::span<const Problem* const> problems,
                        ResultCsv kind, basalt::LocalTimes zone);
