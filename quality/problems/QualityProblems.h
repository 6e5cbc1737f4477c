#pragma once

#include "quality/problems/ProblemFinders.h"

/// What the quality check has found: a problem for each test that a result did not pass. A result
/// whose position is no number is one of its own, since it passes every test; so is one that does
/// not say where its point was designed, since its distance from there is none.
extern const ProblemFinder kQualityFinder;
