#pragma once

#include "model/DesignPoint.h"
#include "samples/PlantedFault.h"
#include "samples/Random.h"
#include "samples/StakedPoint.h"

#include <vector>

namespace demo {

/// Where names are confused.
struct MisnamingInput
{
    std::vector<DesignPoint>& design;   ///< is told which of its points have a result then
    const std::vector<bool>& isTouched; ///< design points whose names are left as they are
    const std::vector<bool>& isForgotten;
};

/// Takes results out of the good ones and gives them wrong names: those of points that were walked
/// past, those of each other, and names that no point has.
/// \param faults  get more, and lose "missing" points that have a result by that
/// \returns the results
[[nodiscard]] std::vector<SurveyPoint> misname(const MisnamingInput& input,
                                               std::vector<StakedPoint>& good,
                                               std::vector<PlantedFault>& faults, Random& random);

} // namespace demo
