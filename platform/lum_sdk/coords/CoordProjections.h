#pragma once

#include "lum_sdk/coords/CoordResult.h"

#include <span>
#include <string>

class IDictionary;

/// The map projections a parameter dictionary can name, and what else its dialog offers.
///
/// Every projection uses "ellipsoid_a", "ellipsoid_f", "project_height" and, except for UTM,
/// "org_lon", "false_east", "false_north" and "factor". Besides these:
///
// clang-format off
/// | project_type            | further keys                                                     |
/// |-------------------------|------------------------------------------------------------------|
/// | 1 transverse Mercator   | org_lat                                                          |
/// | 2 UTM                   | only org_lon (anywhere in the zone) and false_north; factor      |
/// |                         | 0.9996 and false easting 500000 are its own                      |
/// | 3 Lambert conformal     | org_lat; parallel_1_lat, parallel_2_lat; both 0: one parallel at |
/// |                         | org_lat; only the second 0: both are the first                   |
/// | 4 Mercator              | parallel_1_lat, where the scale is true before the factor        |
/// | 5 oblique Mercator      | org_lat (centre, where the false origin is); p_r, azimuth of the |
/// |                         | central line, and parallel_1_lat, the angle that turns the skew  |
/// |                         | grid (0: as p_r); p_r 0: lat1, lon1, lat2, lon2 on the line, no  |
/// |                         | org_lon                                                          |
/// | 6 oblique stereographic | org_lat, 0 for the equatorial one; cutting_radius                |
/// | 7 polar stereographic   | the sign of org_lat tells the pole; parallel_1_lat, where the    |
/// |                         | scale is true (0: at the pole); cutting_radius                   |
/// | 8 Albers equal area     | org_lat, parallel_1_lat, parallel_2_lat                          |
/// | 9 Cassini-Soldner       | org_lat                                                          |
/// | 10 polyconic            | org_lat                                                          |
/// | 11 Krovak               | org_lat; north and east axes, values negative in its country     |
/// | 12 Swiss oblique Merc.  | org_lat                                                          |
/// | 13 Hotine oblique Merc. | org_lat (centre); p_r, parallel_1_lat as above; the false origin |
/// |                         | is where the central line meets the equator of the aposphere     |
/// | 14 Lambert equal area   | org_lat (centre)                                                 |
/// | 15 Colombia urban       | org_lat; project_height, the height of the plane, stretches it   |
/// |                         | in this projection's own way                                     |
// clang-format on
///
/// Angles are decimal degrees, lengths metres. A "factor" of 0 counts as 1; it multiplies the plane
/// in every projection, before the false origin is added, which is also how a system in feet is
/// written: factor in feet a metre, false origin in feet. A "cutting_radius" takes the place of the
/// factor: the chord from the centre to the circle in which the plane cuts the ellipsoid.
/// "project_height" lengthens the semi-major axis for the projection, not the flattening, which
/// stretches the plane by (a + height) / a. "axis_direction" tells where the axes point: "SW"
/// counts southings and westings, "NW" and "SE" turn one axis, everything else is north and east.
/// The false origin is added in the direction of the axes.
namespace lum {

inline constexpr const char* kAxesKey = "axis_direction";

struct ProjectionKind
{
    int code;
    const char* name; ///< English; the context "CoordProjections" translates it
    const char* keys; ///< comma-separated: what the projection reads, in the order to show
};

struct KnownEllipsoid
{
    const char* name;
    double semiMajorM;
    double inverseFlattening; ///< 0 for a sphere
};

[[nodiscard]] std::span<const ProjectionKind> projectionKinds();
/// The one that "project_type" names; null when there is none.
[[nodiscard]] const ProjectionKind* projectionKind(const IDictionary& parameters);
[[nodiscard]] std::span<const KnownEllipsoid> knownEllipsoids();

inline constexpr int kUtmCode = 2; ///< of "project_type"
inline constexpr double kUtmFactor = 0.9996;
inline constexpr double kUtmFalseEastM = 500000;

/// The central meridian, in [-180, 180), of the UTM zone around a longitude.
[[nodiscard]] double utmCentralMeridian(double longitudeDeg);

/// Where the axes of the plane point; otherwise north and east.
struct PlaneAxes
{
    bool isSouth = false; ///< a northing is counted to the south
    bool isWest = false;  ///< an easting is counted to the west

    [[nodiscard]] double northSign() const { return isSouth ? -1 : 1; }
    [[nodiscard]] double eastSign() const { return isWest ? -1 : 1; }
};

[[nodiscard]] PlaneAxes planeAxes(const IDictionary& parameters);

/// PROJ's text of a map projection, without factor and false origin.
struct ProjectionText
{
    std::string projection;
    std::string ellipsoid;
    bool isInverseRough = false; ///< PROJ's inverse is good to some millimetres only
    double factor = 1;
    PlaneAxes axes;
    double falseNorth = 0;
    double falseEast = 0;
};

[[nodiscard]] ProjectionText projectionText(const IDictionary& parameters, CoordFault& fault);

} // namespace lum
