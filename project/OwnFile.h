#pragma once

#include "protocol/Outcome.h"

class QString;
struct ProjectPlace;

/// Whether an export may replace the file at `path`, and an import read it: refused for a file of
/// the open project.
[[nodiscard]] Outcome checkNotOwn(const ProjectPlace& project, const QString& path);
