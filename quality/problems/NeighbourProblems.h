#pragma once

#include "quality/problems/ProblemFinders.h"

/// Results whose height is farther from the median of their neighbours' heights than a limit. The
/// neighbours are the four nearest results within 500 m; a result with fewer than three is not
/// judged.
extern const ProblemFinder kNeighbourFinder;
