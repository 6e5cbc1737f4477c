#pragma once

#include <QString>

#include <cstddef>
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

/// How many sea heights come from a geoid, and why others do not.
struct SeaHeightSummary
{
    std::size_t points = 0;     ///< all; 0 when no geoid is in use
    std::size_t elevations = 0; ///< points whose sea height is their elevation
    QString geoidFile;
    QString reason; ///< translated, of the first of them, or of the system as a whole

    /// A translated sentence that names the geoid file; empty when nothing went wrong.
    [[nodiscard]] QString toText() const;
};

/// Rewrites the sea height of every point that `walk` visits.
///
/// It is the elevation when "geoid_valid" in `parameters` is 0 or `transform` is null; otherwise
/// the height that `transform` gives in direction 2. A point that cannot be transformed gets its
/// elevation.
SeaHeightSummary recomputeSeaHeights(ICoordTransform* transform, const IDictionary& parameters,
                                     const SurveyPointWalk& walk);
