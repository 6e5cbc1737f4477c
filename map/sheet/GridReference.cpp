#include "map/sheet/GridReference.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Numbers.h"
#include "exchange/SameCoordSystem.h"
#include "lum_sdk/coords/CoordCorrections.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/DatumShift.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "model/CoordinateRecord.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace {

using basalt::formatShortest;

constexpr std::string_view kRegister = "EPSG:";
constexpr std::string_view kFactorOne = " +k_0=1"; // in every text of a projection

/// Projections whose files can tell a factor.
constexpr std::array kWithFactor = {"+proj=tmerc ", "+proj=sterea ", "+proj=somerc "};

bool hasPlaneCorrections(const IDictionary& system)
{
    basalt::Dictionary plain(system);
    for (const char* key : {"_4valid", "correct_valid"})
        plain.set(key, "0");
    return !sameCoordSystem(plain, system);
}

bool pointsNorthEast(const IDictionary& system)
{
    const lum::PlaneAxes axes = lum::planeAxes(system);
    return !axes.isSouth && !axes.isWest;
}

bool hasShift(const IDictionary& system)
{
    lum::CoordFault fault;
    return !lum::DatumShift::fromDictionary(system, fault).isNone();
}

/// The name of the system in the register, when it still is that system; otherwise empty. A datum
/// has many shifts, but a system that needs none has none.
std::string registeredName(const IDictionary& system)
{
    std::string name(system.text(CoordinateRecord::kId));
    if (name.rfind(kRegister, 0) != 0)
        return {};
    basalt::Dictionary registered(system);
    if (!fillFromEpsg(std::string_view(name).substr(kRegister.size()), registered).empty() ||
        (hasShift(system) && !hasShift(registered)))
        return {};
    basalt::Dictionary plain(system);
    for (IDictionary* each :
         {static_cast<IDictionary*>(&registered), static_cast<IDictionary*>(&plain)})
        each->set("_7type", "0");
    return sameCoordSystem(plain, registered) ? name : std::string();
}

/// The way to WGS 84 as PROJ writes it: from the local datum, rotating positions.
std::string shiftText(const IDictionary& system)
{
    lum::CoordFault fault;
    basalt::Dictionary back;
    lum::DatumShift::fromDictionary(system, fault).inverse().toDictionary(back);
    std::string text = " +towgs84=";
    for (const char* key : {"_7dx", "_7dy", "_7dz"})
        text += formatShortest(back.number(key)) + ',';
    for (const char* key : {"_7rx", "_7ry", "_7rz"})
        text += formatShortest(0 - back.number(key)) + ',';
    return text + formatShortest(back.number("_7ppm"));
}

/// The projection with factor, false origin and unit.
std::string withFalseOrigin(const lum::ProjectionText& text, double unitM)
{
    std::string whole = text.projection;
    const std::size_t place = whole.find(kFactorOne);
    if (place != std::string::npos)
        whole.replace(place, kFactorOne.size(), " +k_0=" + formatShortest(text.factor * unitM));
    return whole + " +x_0=" + formatShortest(text.falseEast * unitM) +
           " +y_0=" + formatShortest(text.falseNorth * unitM) +
           " +to_meter=" + formatShortest(unitM);
}

/// From the grid back to the plane as it was projected.
std::array<double, 6> toPlane(const IDictionary& system, const lum::ProjectionText& text)
{
    constexpr double kFar = 1e6; // so that rounding counts little
    lum::CoordFault fault;
    const lum::CoordCorrections corrections(system, text, fault);
    const lum::GridPosition origin = corrections.undo({0, 0, 0});
    const lum::GridPosition east = corrections.undo({0, kFar, 0});
    const lum::GridPosition north = corrections.undo({kFar, 0, 0});
    return {origin.east,  (east.east - origin.east) / kFar,   (north.east - origin.east) / kFar,
            origin.north, (east.north - origin.north) / kFar, (north.north - origin.north) / kFar};
}

} // namespace

GridReference gridReference(const IDictionary& system)
{
    GridReference reference;
    lum::CoordFault fault;
    const lum::ProjectionText text = lum::projectionText(system, fault);
    if (system.size() == 0 || fault)
        return reference;
    const bool isPlain = pointsNorthEast(system) && !hasPlaneCorrections(system);
    if (isPlain)
        reference.definition = registeredName(system);
    if (!reference.definition.empty())
        return reference;
    const double unitM = lum::lengthUnitOf(system).metres;
    const bool isFactorTold =
        std::abs(text.factor * unitM - 1) < 1e-12 ||
        std::any_of(kWithFactor.begin(), kWithFactor.end(),
                    [&](const char* name) { return text.projection.rfind(name, 0) == 0; });
    if (isPlain && isFactorTold) {
        reference.definition = withFalseOrigin(text, unitM);
    } else {
        reference.definition = text.projection;
        reference.fromGrid = toPlane(system, text);
    }
    reference.definition += shiftText(system) + " +type=crs";
    return reference;
}
