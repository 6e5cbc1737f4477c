#pragma once

#include "protocol/Outcome.h"

struct CliArguments;

/// skyquill-cli generate PROJECT receiver|source|both [--set key=value ...]
Outcome generateDesign(const CliArguments& arguments);
