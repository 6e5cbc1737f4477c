#pragma once

#include "model/PointLines.h"

class ProgressReporter;

/// Writes on each design point whether it is surveyed: status 1 when its line has a result of
/// exactly its number, else 0. A resurvey or a check point does not count. Reports progress after
/// each line.
void checkEmptyPoints(DesignPoints& design, const SurveyPoints& survey, ProgressReporter& progress);

/// The design points with status 0, in order. Each has the type of its line, which is that of the
/// line's first point.
[[nodiscard]] std::vector<DesignPoint> emptyPoints(const DesignPoints& design);
