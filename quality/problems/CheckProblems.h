#pragma once

#include "quality/problems/ProblemFinders.h"

// What the four checks have found, read from their verdicts.

extern const ProblemFinder kEmptyPointFinder; ///< "missing"
