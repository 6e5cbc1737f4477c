#pragma once

#include "protocol/Outcome.h"

struct CliArguments;

/// "azimuth NORTH EAST NORTH EAST [--dms]": prints azimuth and length from the first place to the
/// second.
Outcome calculateAzimuth(const CliArguments& arguments);
