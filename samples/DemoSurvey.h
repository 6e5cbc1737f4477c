#pragma once

#include "model/PointLines.h"
#include "samples/Grid.h"
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

/// What a survey is made from.
struct DemoPlan
{
    /// Receivers, then sources; each line's points one after the other.
    std::vector<DesignPoint> design = designGrid();
    bool hasObstacles = true; ///< river and village are in the way
    bool hasFaults = true;    ///< without them every point is staked well, and enough again
};

/// Two crews stake the design in six days. Where the river or the village is in the way they move a
/// stake aside (a skid) or leave it out. In the evenings they measure some points again. Faults are
/// planted in the design, in good results, in days and in names.
///
/// \param seed      decides which points get the faults; the same seed gives the same survey
/// \param transform set up by `useSurveySystem`
[[nodiscard]] DemoSurvey makeDemoSurvey(std::uint64_t seed, ICoordTransform& transform,
                                        DemoPlan plan = {});

} // namespace demo
