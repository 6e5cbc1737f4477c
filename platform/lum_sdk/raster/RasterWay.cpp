#include "lum_sdk/raster/RasterWay.h"

#include "lum_sdk/coords/Angles.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace lum {

namespace {

constexpr auto kDirection = static_cast<std::int32_t>(CoordDirection::Target);
constexpr auto kGeodetic = static_cast<std::int32_t>(CoordKind::Geodetic);
constexpr auto kPlane = static_cast<std::int32_t>(CoordKind::Plane);
constexpr auto kDegrees = static_cast<std::int32_t>(AngleFormat::DecimalDegrees);
constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

// Shifts to WGS 84 of one datum differ by some tens of metres at most, those of two datums on one
// ellipsoid by hundreds.
constexpr double kOneDatumM = 200;
constexpr double kNoShiftM = 1;

bool isGood(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// Between two places given by longitude and latitude in degrees, near each other.
double distanceM(const QPointF& a, const QPointF& b)
{
    constexpr double kDegreeM = 111'320;
    const double east =
        std::remainder(a.x() - b.x(), 360) * std::cos(a.y() * std::numbers::pi / 180);
    return std::hypot(east, a.y() - b.y()) * kDegreeM;
}

QPointF transformed(PJ* object, PJ_DIRECTION direction, const QPointF& point)
{
    if (!isGood(point))
        return {kNone, kNone};
    const PJ_COORD found =
        proj_trans(object, direction, proj_coord(point.x(), point.y(), 0, HUGE_VAL));
    const QPointF result(found.xy.x, found.xy.y);
    if (isGood(result))
        return result;
    proj_errno_reset(object);
    return {kNone, kNone};
}

/// Points (x, y) as triples (y, x), in place; NaN where it fails.
void transformAll(CoordWjl& service, std::int32_t from, std::int32_t to, std::span<QPointF> points)
{
    std::vector<CoordTriple> triples;
    triples.reserve(points.size());
    for (const QPointF& point : points)
        triples.push_back({point.y(), point.x(), 0});
    std::vector<std::int32_t> codes(points.size());
    service.transformMany(kDirection, from, to, kDegrees, triples, triples, codes);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i] =
            codes[i] == 0 ? QPointF(triples[i].second, triples[i].first) : QPointF(kNone, kNone);
}

/// What matters on the plane: heights are not asked for, and a geoid that does not reach to a place
/// must not keep the raster from being shown there.
basalt::Dictionary planeSystem(const IDictionary& system, bool withShift)
{
    basalt::Dictionary plane(system);
    plane.set("geoid_valid", "0");
    if (!withShift)
        plane.set("_7type", "0");
    return plane;
}

/// The system itself, without a height system beside it and without a shift tied to it.
ProjObject horizontalPart(PJ_CONTEXT* context, const std::string& wkt)
{
    ProjObject system(proj_create(context, wkt.c_str()));
    if (system && proj_get_type(system.get()) == PJ_TYPE_COMPOUND_CRS)
        system.reset(proj_crs_get_sub_crs(context, system.get(), 0));
    return system;
}

ProjObject withoutShift(PJ_CONTEXT* context, const PJ* system)
{
    return ProjObject(proj_get_type(system) == PJ_TYPE_BOUND_CRS
                          ? proj_get_source_crs(context, system)
                          : proj_clone(context, system));
}

} // namespace

std::unique_ptr<RasterWay> RasterWay::between(const std::string& wkt, const IDictionary& system,
                                              const QPointF& center)
{
    if (wkt.empty() || system.size() == 0)
        return nullptr;
    std::unique_ptr<RasterWay> way(new RasterWay); // NOLINT(*-owning-memory)
    return way->setUp(wkt, system, center) ? std::move(way) : nullptr;
}

bool RasterWay::setUp(const std::string& wkt, const IDictionary& system, const QPointF& center)
{
    const basalt::Dictionary shifted = planeSystem(system, true);
    if (m_project.initialise(shifted, shifted) != 0)
        return false;
    m_context = makeProjContext();
    const ProjObject raster = horizontalPart(m_context.get(), wkt);
    if (!raster)
        return false;
    const ProjObject own = withoutShift(m_context.get(), raster.get());
    const ProjObject datum(proj_crs_get_geodetic_crs(m_context.get(), own.get()));
    if (!datum)
        return false;
    const PJ_TYPE type = proj_get_type(own.get());
    m_isGeographic = type == PJ_TYPE_GEOGRAPHIC_2D_CRS || type == PJ_TYPE_GEOGRAPHIC_3D_CRS;
    m_centralLongitude = center.x();
    const ProjObject wgs84(proj_create(m_context.get(), "EPSG:4326"));
    ProjObject local = operation(datum.get(), own.get(), true);
    ProjObject global = operation(wgs84.get(), raster.get(), true);
    if (local && isSameEllipsoid(own.get(), system) &&
        isSameDatum(raster.get(), local.get(), system, center)) {
        const basalt::Dictionary plain = planeSystem(system, false);
        m_raster = std::move(local);
        return m_project.initialise(plain, plain) == 0;
    }
    m_raster = std::move(global);
    return m_raster != nullptr;
}

bool RasterWay::isSameEllipsoid(PJ* raster, const IDictionary& system) const
{
    const ProjObject ellipsoid(proj_get_ellipsoid(m_context.get(), raster));
    const ProjObject meridian(proj_get_prime_meridian(m_context.get(), raster));
    double longitude = 0;
    double axis = 0;
    double inverseFlattening = 0;
    if (!ellipsoid || !meridian ||
        proj_ellipsoid_get_parameters(m_context.get(), ellipsoid.get(), &axis, nullptr, nullptr,
                                      &inverseFlattening) == 0 ||
        proj_prime_meridian_get_parameters(m_context.get(), meridian.get(), &longitude, nullptr,
                                           nullptr) == 0)
        return false;
    return longitude == 0 && std::abs(axis - system.number("ellipsoid_a")) < 1e-3 &&
           std::abs(inverseFlattening - system.number("ellipsoid_f")) < 1e-7;
}

bool RasterWay::isSameDatum(PJ* raster, PJ* local, const IDictionary& system, const QPointF& center)
{
    const QPointF onDatum = transformed(local, PJ_INV, center);
    const basalt::Dictionary plain = planeSystem(system, false);
    CoordWjl unshifted;
    if (unshifted.initialise(plain, plain) != 0)
        return false;
    QPointF byProject = onDatum;
    transformAll(unshifted, kGeodetic, kPlane, {&byProject, 1});
    transformAll(m_project, kPlane, kGeodetic, {&byProject, 1});
    if (!isGood(byProject))
        return false; // far from each other
    const ProjObject wgs84(proj_create(m_context.get(), "EPSG:4326"));
    const ProjObject exact = operation(wgs84.get(), raster, false);
    const QPointF byRaster =
        exact ? transformed(exact.get(), PJ_INV, center) : QPointF(kNone, kNone);
    if (!isGood(byRaster) || distanceM(onDatum, byProject) < kNoShiftM / 100)
        return true; // one of the two knows no shift
    return distanceM(onDatum, byRaster) > kNoShiftM && distanceM(byProject, byRaster) < kOneDatumM;
}

ProjObject RasterWay::operation(PJ* from, PJ* to, bool isRoughAllowed) const
{
    static const char* const kOnlyKnown[] = {"ALLOW_BALLPARK=NO", nullptr};
    const ProjObject found(proj_create_crs_to_crs_from_pj(m_context.get(), from, to, nullptr,
                                                          isRoughAllowed ? nullptr : kOnlyKnown));
    if (!found)
        return {};
    return ProjObject(proj_normalize_for_visualization(m_context.get(), found.get()));
}

/// A longitude is given in the turn that the raster uses.
QPointF RasterWay::inRange(const QPointF& point) const
{
    if (!m_isGeographic)
        return point;
    const double offset = std::remainder(point.x() - m_centralLongitude, 360);
    return {m_centralLongitude + offset, point.y()};
}

void RasterWay::toRaster(std::span<QPointF> points)
{
    const std::vector<QPointF> before(points.begin(), points.end());
    transformAll(m_project, kPlane, kGeodetic, points);
    std::vector<QPointF> back(points.begin(), points.end());
    transformAll(m_project, kGeodetic, kPlane, back);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const QPointF gap = back[i] - before[i];
        const double length = std::abs(before[i].x()) + std::abs(before[i].y());
        const bool isTrue = std::hypot(gap.x(), gap.y()) <= 1 + 1e-9 * length; // false for NaN
        points[i] = isTrue ? inRange(transformed(m_raster.get(), PJ_FWD, points[i]))
                           : QPointF(kNone, kNone);
    }
}

void RasterWay::toPlane(std::span<QPointF> points)
{
    for (QPointF& point : points)
        point = transformed(m_raster.get(), PJ_INV, point);
    transformAll(m_project, kGeodetic, kPlane, points);
}

} // namespace lum
