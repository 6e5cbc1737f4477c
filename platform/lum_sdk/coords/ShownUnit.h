#pragma once

#include "lum_sdk/coords/LengthUnit.h"

namespace lum {

/// The unit of plane coordinates, and the unit in which the user reads them.
struct ShownUnit
{
    LengthUnit grid;
    LengthUnit shown;

    /// A coordinate or distance on the grid in the unit that is shown.
    [[nodiscard]] double toShown(double gridLength) const
    {
        return gridLength * grid.metres / shown.metres;
    }
};

/// The units of the open project, by its coordinate system and the setting "un_coordUnit": metres,
/// or feet. A system in feet, whichever these are, keeps its own when feet are wanted; for any
/// other they are international ones.
[[nodiscard]] ShownUnit shownUnit();

} // namespace lum
