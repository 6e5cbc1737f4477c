#pragma once

#include "quality/problems/FinderInput.h"
#include "quality/problems/ProblemList.h"

/// Removes from the problems of all finders those that are none any more when the names that the
/// list proposes are carried out, and counts them in `follows` of the proposals. What would remain
/// a problem under the right name stays.
void explainByNames(const FinderInput& input, ProblemList& all);
