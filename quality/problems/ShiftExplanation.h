#pragma once

#include "quality/problems/FinderInput.h"
#include "quality/problems/ProblemList.h"

/// Removes from the problems of all finders those of single results that follow from the shifts in
/// the list, and counts them in `follows` of these.
///
/// A problem follows when it would be none without what its result is off by, or, where it compares
/// two results or neighbours, what the other one is. What is off by more than that and its limit
/// stays.
void explainByShifts(const FinderInput& input, ProblemList& all);
