#pragma once

#include "quality/problems/FinderInput.h"
#include "quality/problems/LineTelling.h"

/// What is wrong with the lines of the design.
void findInDesignLines(const FinderInput& input, const LineParameters& parameters,
                       LineTelling& telling);
