#pragma once

#include "protocol/Outcome.h"

struct CliArguments;

/// "print PROJECT design|survey FILE": writes the map as a sheet of paper.
[[nodiscard]] Outcome printMap(const CliArguments& arguments);
