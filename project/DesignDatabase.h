#pragma once

#include "exchange/DesignChoice.h"
#include "protocol/Outcome.h"

class IDictionary;
class ProgressReporter;

/// Writes design points and a coordinate system into a new project database, which replaces the
/// file at `path`.
/// \returns why it failed; the file is then as it was before
Outcome writeDesignDatabase(const QString& path, const DesignChoice& choice,
                            const IDictionary& coordParameters, ProgressReporter& progress);
