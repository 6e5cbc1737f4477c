#pragma once

#include "model/PointLines.h"

struct Problem;

/// Whether a crew can do something about a problem: measure its point, or measure it again. A fault
/// of the design alone is the office's, as a wrong name is, unless the point that it says is left
/// without a result; a note is nobody's.
[[nodiscard]] bool isForCrew(const Problem& problem, const DesignPoints& design);
