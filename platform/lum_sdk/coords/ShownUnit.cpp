#include "lum_sdk/coords/ShownUnit.h"

#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/SystemKeys.h"

#include <cmath>

namespace lum {

namespace {

bool isFoot(const LengthUnit& unit)
{
    constexpr double kMostApartM = 1e-3; // the feet of the register are closer to each other
    return std::abs(unit.metres - kFoot.metres) < kMostApartM;
}

} // namespace

ShownUnit shownUnit()
{
    const LengthUnit grid = lengthUnitOf(get_project_coord_transform().parameters());
    if (get_system_ini_parameter().dictionary().integer(settings::kCoordUnit) == 0)
        return {grid, kMetre};
    return {grid, isFoot(grid) ? grid : kFoot};
}

} // namespace lum
