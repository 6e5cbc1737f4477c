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

/// A function that calls its argument with every survey point. The pointers to the results must
/// stay valid until it returns.
using SurveyPointWalk = std::function<void(const std::function<void(const SeaHeightPoint&)>&)>;

/// Rewrites the sea height of every point that `walk` visits.
///
/// It is the elevation when "geoid_valid" in `parameters` is 0 or `transform` is null; otherwise
/// the height that `transform` gives in direction 2. A point that cannot be transformed gets its
/// elevation.
void recomputeSeaHeights(ICoordTransform* transform, const IDictionary& parameters,
                         const SurveyPointWalk& walk);
