#pragma once

#include "model/PointLines.h"
#include "samples/PlantedFault.h"

#include <vector>

class ICoordTransform;

namespace demo {

/// A whole survey with known faults.
struct DemoSurvey
{
    DesignPoints design;
    SurveyPoints survey; ///< with the times of the survey's clocks, not of this computer
    std::vector<PlantedFault> faults; ///< sorted by kind, line and point
};

/// Two crews stake the design in six days. Where the river or the village is in the way they move a
/// stake aside (a skid) or leave it out. Then faults are planted in good results, and some points
/// are measured again.
///
/// \param seed      decides which points get the faults; the same seed gives the same survey
/// \param transform set up by `useSurveySystem`
[[nodiscard]] DemoSurvey makeDemoSurvey(std::uint64_t seed, ICoordTransform& transform);

} // namespace demo
