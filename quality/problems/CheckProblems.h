#pragma once

#include "quality/problems/ProblemFinders.h"

// What three of the four checks have found; QualityProblems.h has that of the quality check.

extern const ProblemFinder kEmptyPointFinder;
/// First results that their resurvey does not confirm, and resurveys without a first result.
extern const ProblemFinder kResurveyFinder;
/// Check points, each with its distance from what it measures again.
extern const ProblemFinder kRepeatFinder;
