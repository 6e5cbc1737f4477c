#pragma once

#include "basalt_utilities/Dictionary.h"

namespace desktop {

/// The parameters in the configuration text of a component; none when the text is null.
[[nodiscard]] basalt::Dictionary componentParameters(const char* config);

} // namespace desktop
