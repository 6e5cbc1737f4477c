#pragma once

#include "model/DesignPoint.h"
#include "samples/PlantedFault.h"

#include <cstdint>
#include <vector>

namespace demo {

/// What was planted in a design.
struct DesignFaults
{
    std::vector<PlantedFault> faults;
    std::vector<bool> isTouched; ///< for each design point, whether it is of a fault or beside one
};

/// Plants faults of a planner in the design, each in a line of its own and away from obstacles. The
/// points keep their places in the vector, so that the crews stake them in the same order.
[[nodiscard]] DesignFaults plantDesignFaults(std::vector<DesignPoint>& design, std::uint64_t seed);

} // namespace demo
