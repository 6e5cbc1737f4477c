#include "lum_sdk/coords/CoordChain.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/Paths.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/DatumShift.h"

#include <cmath>

namespace lum {

namespace {

bool isFinite(const PJ_COORD& point)
{
    return std::isfinite(point.xyz.x) && std::isfinite(point.xyz.y) && std::isfinite(point.xyz.z);
}

/// Transforms the points whose code is 0 by `object`; those that fail get `code`.
void runAll(PJ* object, PJ_DIRECTION direction, CoordResult code, std::span<PJ_COORD> points,
            std::span<std::int32_t> codes)
{
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (codes[i] != 0)
            continue;
        points[i] = proj_trans(object, direction, points[i]);
        if (!isFinite(points[i])) {
            proj_errno_reset(object);
            codes[i] = static_cast<std::int32_t>(code);
        }
    }
}

std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (const char c : text)
        result += c == '"' ? std::string("\"\"") : std::string(1, c);
    return result + '"';
}

} // namespace

CoordChain::CoordChain(const IDictionary& parameters) : m_context(makeProjContext())
{
    const ProjectionText text = projectionText(parameters, m_fault);
    const DatumShift shift =
        m_fault ? DatumShift() : DatumShift::fromDictionary(parameters, m_fault);
    m_corrections = CoordCorrections(parameters, text, m_fault);
    if (m_fault)
        return;
    std::string definition = text.projection;
    if (!shift.isNone()) {
        definition = "+proj=pipeline +step +proj=cart +ellps=WGS84 +step " + shift.projStep() +
                     " +step +inv +proj=cart" + text.ellipsoid + " +step " + text.projection;
    }
    m_plane = make(definition, CoordResult::Refused, {});
    m_isInverseRough = text.isInverseRough;
    m_geocentric = make("+proj=cart +ellps=WGS84", CoordResult::Refused, {});
    if (!m_fault && parameters.integer("geoid_valid") != 0)
        makeGeoid(parameters);
}

ProjObject CoordChain::make(const std::string& definition, CoordResult codeOnFailure,
                            const std::string& detail)
{
    ProjObject object(proj_create(m_context.get(), definition.c_str()));
    if (!object && !m_fault) {
        const int reason = proj_context_errno(m_context.get());
        m_fault = {codeOnFailure,
                   detail.empty() ? proj_context_errno_string(m_context.get(), reason) : detail};
    }
    return object;
}

void CoordChain::makeGeoid(const IDictionary& parameters)
{
    const std::string file(parameters.text("geoid_file"));
    if (file.empty()) {
        m_fault = {CoordResult::NoGeoidFile, {}};
        return;
    }
    // A name without a folder is one of PROJ's own grids. PROJ ignores a missing file after "@",
    // and a comma begins the name of a second file.
    if (file.front() == '@' || file.find(',') != std::string::npos) {
        m_fault = {CoordResult::GeoidFile, file};
        return;
    }
    m_geoid = make("+proj=vgridshift +grids=" + quoted(basalt::resolvedPath(file)),
                   CoordResult::GeoidFile, file);
}

void CoordChain::geodeticToGrid(std::span<PJ_COORD> points, std::span<std::int32_t> codes) const
{
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (codes[i] != 0)
            continue;
        PJ_COORD& point = points[i];
        double seaHeight = 0;
        if (m_geoid) {
            seaHeight = proj_trans(m_geoid.get(), PJ_FWD, point).xyz.z;
            if (!std::isfinite(seaHeight)) {
                codes[i] = static_cast<std::int32_t>(CoordResult::OutsideGeoid);
                continue;
            }
        }
        point = proj_trans(m_plane.get(), PJ_FWD, point);
        if (!isFinite(point)) {
            codes[i] = static_cast<std::int32_t>(CoordResult::OutsideProjection);
            continue;
        }
        const double height = m_geoid ? seaHeight : point.xyz.z;
        const auto grid = m_corrections.apply({point.xyz.y, point.xyz.x, height});
        point.xyz = {grid.east, grid.north, grid.height};
    }
}

void CoordChain::gridToGeodetic(std::span<PJ_COORD> points, std::span<std::int32_t> codes) const
{
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (codes[i] != 0)
            continue;
        PJ_COORD& point = points[i];
        const auto plane = m_corrections.undo({point.xyz.y, point.xyz.x, point.xyz.z});
        point.xyz = {plane.east, plane.north, plane.height};
        codes[i] =
            static_cast<std::int32_t>(m_geoid ? undoWithGeoid(point) : undoProjection(point));
    }
}

PJ_COORD CoordChain::unprojected(const PJ_COORD& point) const
{
    const PJ_COORD found = proj_trans(m_plane.get(), PJ_INV, point);
    if (!m_isInverseRough || !isFinite(found))
        return found;
    // PROJ's inverse misses by a millimetre or two; it misses a point close by in the same way.
    const PJ_COORD missed = proj_trans(m_plane.get(), PJ_FWD, found);
    PJ_COORD aim = point;
    aim.xyz.x += point.xyz.x - missed.xyz.x;
    aim.xyz.y += point.xyz.y - missed.xyz.y;
    return proj_trans(m_plane.get(), PJ_INV, aim);
}

CoordResult CoordChain::undoProjection(PJ_COORD& point) const
{
    point = unprojected(point);
    return isFinite(point) ? CoordResult::Success : CoordResult::OutsideProjection;
}

CoordResult CoordChain::undoWithGeoid(PJ_COORD& point) const
{
    // The datum shift needs the height above the local ellipsoid, which is not known. It is found
    // in steps: the one that leads to the WGS 84 height which the geoid gives for the position. An
    // error in this height moves the position by only 1e-5 of it.
    const PJ_COORD grid = point;
    double localHeight = grid.xyz.z;
    for (int round = 0; round < 10; ++round) {
        point = grid;
        point.xyz.z = localHeight;
        if (undoProjection(point) != CoordResult::Success)
            return CoordResult::OutsideProjection;
        PJ_COORD geoid = point;
        geoid.xyz.z = grid.xyz.z;
        geoid = proj_trans(m_geoid.get(), PJ_INV, geoid);
        if (!isFinite(geoid))
            return CoordResult::OutsideGeoid;
        const double gap = geoid.xyz.z - point.xyz.z;
        point.xyz.z = geoid.xyz.z;
        if (std::abs(gap) < 1e-5)
            break;
        localHeight += gap;
    }
    return CoordResult::Success;
}

void CoordChain::geodeticToGeocentric(std::span<PJ_COORD> points,
                                      std::span<std::int32_t> codes) const
{
    runAll(m_geocentric.get(), PJ_FWD, CoordResult::NotACoordinate, points, codes);
}

void CoordChain::geocentricToGeodetic(std::span<PJ_COORD> points,
                                      std::span<std::int32_t> codes) const
{
    runAll(m_geocentric.get(), PJ_INV, CoordResult::NotACoordinate, points, codes);
}

} // namespace lum
