#pragma once

#include "basalt_utilities/IDictionary.h"
#include "model/PointName.h"

/// The point that an event "..._POINT_SELECTED" names in its payload.
[[nodiscard]] inline PointName selectedPoint(const IDictionary& payload)
{
    return {std::string(payload.text("lineName")), std::string(payload.text("pointName"))};
}
