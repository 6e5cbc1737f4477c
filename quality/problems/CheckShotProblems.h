#pragma once

#include "quality/problems/ProblemFinders.h"

/// What points that were measured again tell.
///
/// Crews that measured fewer of them on a day than the limits want: a share of the points that they
/// measured that day, and at least a number. Of a crew that measured no more points than that
/// number none are wanted. What they measured again may be of another day or
/// crew. A crew is its surveyor, or without one its rover. Results without a time count for no day.
///
/// Bases and poles that were wrong on a day, see ShiftProblems.h.
extern const ProblemFinder kCheckShotFinder;
