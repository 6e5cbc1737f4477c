#pragma once

#include "protocol/Outcome.h"

struct CliArguments;

/// "compare PROJECT OTHER.db [--csv FILE] [--xlsx FILE]": prints how far the coordinate system of
/// another project's results is from the project's.
Outcome compareProject(const CliArguments& arguments);
