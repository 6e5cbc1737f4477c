#pragma once

#include <functional>

class IDictionary;
class ICoordTransform;

/// What the sea height of a survey point comes from, and where it goes.
struct SeaHeightPoint
{
    double latitudeDeg = 0;
    double longitudeDeg = 0;
    double altitudeM = 0;  ///< above the WGS 84 ellipsoid
    double elevationM = 0; ///< as measured and stored
    double* seaHeightM = nullptr;
};

/// Calls its argument with every survey point; the places of the results stay valid until the walk
/// returns.
using SurveyPointWalk = std::function<void(const std::function<void(const SeaHeightPoint&)>&)>;

/// Rewrites the sea height of every point that `walk` visits.
///
/// It is the elevation while "geoid_valid" in `parameters` is 0, else the height that `transform`
/// gives in direction 2. A point that cannot be transformed gets its elevation, as every point does
/// when `transform` is null.
void recomputeSeaHeights(ICoordTransform* transform, const IDictionary& parameters,
                         const SurveyPointWalk& walk);
