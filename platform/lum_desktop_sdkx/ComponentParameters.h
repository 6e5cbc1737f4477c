#pragma once

#include "basalt_utilities/Dictionary.h"

namespace desktop {

/// The parameters in a component's configuration text; none in a null one.
[[nodiscard]] basalt::Dictionary componentParameters(const char* config);

} // namespace desktop
