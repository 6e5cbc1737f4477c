#pragma once

#include "quality/problems/FinderInput.h"
#include "quality/problems/LineTelling.h"

/// What is wrong with the lines of results. Resurveys and check points are no points of a line.
void findInResultLines(const FinderInput& input, const LineParameters& parameters,
                       LineTelling& telling);
