#pragma once

#include "quality/problems/ProblemFinders.h"

/// Results whose stored values are beyond the limits of solution type, age of corrections, epochs,
/// occupation and RMS. A value on its limit passes; one that is no number does not.
extern const ProblemFinder kStoredValueFinder;
