#pragma once

#include "protocol/Outcome.h"

/// What every operation on files ends with: the log gets why it failed, or what the user is told.
Outcome logged(Outcome outcome);
/// The same for operations that answer by a number.
/// \param asked  gets the outcome unless it is null
/// \returns 1 when the operation is done, else 0
int answered(const Outcome& outcome, Outcome* asked);
