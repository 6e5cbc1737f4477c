#pragma once

#include "model/SurveyPoint.h"

#include <cstddef>

namespace demo {

/// A result while the survey is made.
struct StakedPoint
{
    std::size_t design; ///< place of its design point in the design
    SurveyPoint point;
};

} // namespace demo
