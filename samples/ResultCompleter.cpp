#include "samples/ResultCompleter.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/ICoordTransform.h"

#include <QString>

#include <cmath>
#include <numbers>

namespace demo {

namespace {

/// Latitude and longitude in decimal degrees, height in metres.
CoordTriple toGeodetic(ICoordTransform& transform, const CoordTriple& plane)
{
    CoordTriple geodetic;
    transform.transform(
        static_cast<int>(CoordDirection::Target), static_cast<int>(CoordKind::Plane),
        static_cast<int>(CoordKind::Geodetic), static_cast<int>(lum::AngleFormat::DecimalDegrees),
        plane.first, plane.second, plane.third, &geodetic.first, &geodetic.second, &geodetic.third);
    return geodetic;
}

/// Rounded to the four decimals of the files, so that PDOP fits HDOP and VDOP also there.
double rounded(double value)
{
    return std::round(value * 10000) / 10000;
}

void setDeviations(SurveyPoint& point)
{
    if (!hasDesignPosition(point))
        return;
    const double azimuth = azimuthDeg(point.pointMark) * std::numbers::pi / 180;
    const double north = point.north - point.designNorth;
    const double east = point.east - point.designEast;
    point.transversalDeviation = east * std::cos(azimuth) - north * std::sin(azimuth);
    point.longitudinalDeviation = north * std::cos(azimuth) + east * std::sin(azimuth);
}

} // namespace

QString useSurveySystem(ICoordTransform& transform)
{
    basalt::Dictionary parameters;
    const std::string fault = fillFromEpsg(kEpsgCode, parameters);
    if (!fault.empty())
        return QString::fromStdString(fault);
    const std::int32_t code = transform.initialise(parameters, parameters);
    return code == 0 ? QString() : QString::fromUtf8(transform.message(code));
}

void ResultCompleter::complete(SurveyPoint& point)
{
    const CoordTriple geodetic =
        toGeodetic(m_transform, {point.north, point.east, point.elevation});
    point.latitude = geodetic.first;
    point.longitude = geodetic.second;
    point.altitude = geodetic.third;
    point.hdop = rounded(point.hdop);
    point.vdop = rounded(point.vdop);
    point.pdop = std::hypot(point.hdop, point.vdop);
    point.rms = std::hypot(point.horizontalAccuracy, point.verticalAccuracy);
    setDeviations(point);
    setReference(point);
}

void ResultCompleter::setReference(SurveyPoint& point)
{
    const DemoBase& station = baseStation(point.baseStationId);
    const PlanePlace plane = toPlane(station.place);
    const double height = point.referenceAltitude; // what the crew entered, right or wrong
    const CoordTriple geodetic = toGeodetic(m_transform, {plane.north, plane.east, height});
    point.referenceNorth = plane.north;
    point.referenceEast = plane.east;
    point.referenceLatitude = geodetic.first;
    point.referenceLongitude = geodetic.second;
    point.referenceDistance =
        std::hypot(point.north - plane.north, point.east - plane.east, point.elevation - height);
}

} // namespace demo
