#pragma once

#include <QString>

namespace desktop {

/// Style sheet of the docks: flat tabs, the current one marked in the highlight colour, hairline
/// splitters. All colours come from the palette, light or dark.
[[nodiscard]] QString dockStyle();

} // namespace desktop
