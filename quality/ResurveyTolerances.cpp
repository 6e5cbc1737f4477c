#include "quality/ResurveyTolerances.h"

#include "basalt_utilities/Numbers.h"
#include "quality/QualityLimits.h"

#include <cmath>

ResurveyTolerances ResurveyTolerances::from(const IDictionary& parameters, double planeUnitM)
{
    const auto tolerance = [&](const char* key) {
        return basalt::parseNumber(qualityParameter(parameters, key));
    };
    return {{tolerance("re_north_diff"), tolerance("re_east_diff"), tolerance("re_elev_diff")},
            planeUnitM};
}

std::array<bool, 3>
ResurveyTolerances::exceededBy(const std::array<double, 3>& northEastElevation) const
{
    const auto& [north, east, elevation] = northEastElevation;
    return {std::fabs(north * planeUnitM) > metres[0] + kRoundingM,
            std::fabs(east * planeUnitM) > metres[1] + kRoundingM,
            std::fabs(elevation) > metres[2] + kRoundingM};
}
