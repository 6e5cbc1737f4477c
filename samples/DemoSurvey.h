#pragma once

#include "model/PointLines.h"
#include "samples/PlantedFault.h"

#include <vector>

class ICoordTransform;

namespace demo {

/// A whole survey with faults that are known.
struct DemoSurvey
{
    DesignPoints design;
    SurveyPoints survey; ///< times are those of the survey's clocks, whatever this computer's zone
    std::vector<PlantedFault> faults; ///< by kind, line and point
};

/// Two crews stake the design on six days; river and village make them skid points or leave them
/// out. Then faults are planted in good results, and some points are measured again.
///
/// \param seed      the same one gives the same survey; the ground is always the same
/// \param transform of the survey's system, see `useSurveySystem`
[[nodiscard]] DemoSurvey makeDemoSurvey(std::uint64_t seed, ICoordTransform& transform);

} // namespace demo
