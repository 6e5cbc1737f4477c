#pragma once

#include "quality/problems/ProblemFinders.h"

/// What is wrong with lines: the kinds of LineKinds.h, in the design and in the results. Points of
/// one line and type belong together. Where most results of a line have design points, the design
/// answers for spacing, order and gaps; where they have none, the results themselves are a line,
/// from which stakes may have been moved aside.
extern const ProblemFinder kLineFinder;
