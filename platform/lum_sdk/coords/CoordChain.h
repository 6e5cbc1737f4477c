#pragma once

#include "lum_sdk/coords/CoordCorrections.h"
#include "lum_sdk/coords/CoordResult.h"
#include "lum_sdk/coords/ProjHandles.h"

#include <cstdint>
#include <span>
#include <string>

class IDictionary;

namespace lum {

/// One coordinate system: from geodetic WGS 84 to the project grid and back.
///
/// Datum shift, map projection and `CoordCorrections`. With a geoid the height starts from the
/// WGS 84 height less the undulation at the WGS 84 position; without one it is the height above the
/// local ellipsoid. Positions are changed in place: geodetic as (longitude, latitude) in radians
/// and height, grid as (east, north, height). A position whose code is not 0 is skipped, and one
/// that fails gets its code.
class CoordChain
{
public:
    explicit CoordChain(const IDictionary& parameters);

    /// What is wrong with the parameters. With a fault, nothing may be transformed.
    [[nodiscard]] const CoordFault& fault() const { return m_fault; }

    void geodeticToGrid(std::span<PJ_COORD> points, std::span<std::int32_t> codes) const;
    void gridToGeodetic(std::span<PJ_COORD> points, std::span<std::int32_t> codes) const;
    void geodeticToGeocentric(std::span<PJ_COORD> points, std::span<std::int32_t> codes) const;
    void geocentricToGeodetic(std::span<PJ_COORD> points, std::span<std::int32_t> codes) const;

private:
    [[nodiscard]] ProjObject make(const std::string& definition, CoordResult codeOnFailure,
                                  const std::string& detail);
    void makeGeoid(const IDictionary& parameters);
    /// The inverse of `m_plane`, to a nanometre.
    [[nodiscard]] PJ_COORD unprojected(const PJ_COORD& point) const;
    [[nodiscard]] CoordResult undoProjection(PJ_COORD& point) const;
    [[nodiscard]] CoordResult undoWithGeoid(PJ_COORD& point) const;

    ProjContext m_context;
    ProjObject m_plane;            ///< datum shift and projection
    bool m_isInverseRough = false; ///< that of `m_plane`
    ProjObject m_geoid;            ///< null when heights are ellipsoidal
    ProjObject m_geocentric;       ///< on WGS 84
    CoordCorrections m_corrections;
    CoordFault m_fault;
};

} // namespace lum
