#pragma once

#include "protocol/Outcome.h"

struct ProjectPlace;

/// Makes a project with the demo survey, while no project is open, by writing the survey's files
/// into the folder "csv" of the project and importing them. A failure removes a folder that it has
/// made.
[[nodiscard]] Outcome makeDemoProject(const ProjectPlace& place);
