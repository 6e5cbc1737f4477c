#include "lum_sdk/coords/CoordResult.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <iterator>

namespace lum {

namespace {

struct Sentence
{
    CoordResult code;
    const char* text; ///< %1 is the fault's detail
};

constexpr Sentence kSentences[] = {
    {CoordResult::NotInitialised,
     QT_TRANSLATE_NOOP("CoordResult", "No coordinate system has been set.")},
    {CoordResult::UnknownDirection,
     QT_TRANSLATE_NOOP("CoordResult", "The transformation direction is unknown.")},
    {CoordResult::UnknownInputKind,
     QT_TRANSLATE_NOOP("CoordResult", "The kind of the given coordinates is unknown.")},
    {CoordResult::UnknownOutputKind,
     QT_TRANSLATE_NOOP("CoordResult", "The kind of the wanted coordinates is unknown.")},
    {CoordResult::UnknownAngleFormat,
     QT_TRANSLATE_NOOP("CoordResult", "The angle format is unknown.")},
    {CoordResult::NotACoordinate,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The position is not a coordinate: it is not a number, or its latitude "
                       "lies beyond 90 degrees.")},
    {CoordResult::OutsideProjection,
     QT_TRANSLATE_NOOP("CoordResult", "The position lies where the map projection cannot reach.")},
    {CoordResult::OutsideGeoid,
     QT_TRANSLATE_NOOP("CoordResult", "The position lies outside of the geoid file.")},
    {CoordResult::NotANumber,
     QT_TRANSLATE_NOOP("CoordResult", "The parameter %1 is not a finite number.")},
    {CoordResult::EllipsoidAxis,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The semi-major axis of the ellipsoid (ellipsoid_a) must be positive, in "
                       "metres.")},
    {CoordResult::EllipsoidFlattening,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The flattening of the ellipsoid (ellipsoid_f) must be inverse, like "
                       "298.257, or 0 for a sphere.")},
    {CoordResult::KrovakEllipsoid,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The Krovak projection needs the ellipsoid Bessel 1841 (ellipsoid_a "
                       "6377397.155, ellipsoid_f 299.1528128).")},
    {CoordResult::ProjectHeight,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The height of the projection surface (project_height) must lie within "
                       "100 km, in metres.")},
    {CoordResult::NoProjection,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The coordinate system has no map projection (project_type).")},
    {CoordResult::UnknownProjection,
     QT_TRANSLATE_NOOP("CoordResult", "The map projection %1 is unknown (project_type).")},
    {CoordResult::OriginLatitude,
     QT_TRANSLATE_NOOP("CoordResult", "The origin latitude (org_lat) does not suit the map "
                                      "projection.")},
    {CoordResult::OriginLongitude,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The origin longitude (org_lon) must lie within 360 degrees.")},
    {CoordResult::Parallels,
     QT_TRANSLATE_NOOP("CoordResult", "The standard parallels (parallel_1_lat, parallel_2_lat) do "
                                      "not suit the map projection.")},
    {CoordResult::Azimuth,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The oblique projection needs the azimuth of its central line (p_r), or "
                       "two points on it (lat1, lon1, lat2, lon2).")},
    {CoordResult::Factor,
     QT_TRANSLATE_NOOP("CoordResult", "The scale factor (factor) must not be negative.")},
    {CoordResult::CuttingRadius,
     QT_TRANSLATE_NOOP("CoordResult", "The cutting radius (cutting_radius) must be smaller than "
                                      "the ellipsoid, and not negative.")},
    {CoordResult::UnknownDatumShift,
     QT_TRANSLATE_NOOP("CoordResult", "The datum shift %1 is unknown (_7type).")},
    {CoordResult::DatumShiftPivot,
     QT_TRANSLATE_NOOP("CoordResult", "The Molodensky-Badekas datum shift needs its rotation "
                                      "centre (_7px, _7py, _7pz).")},
    {CoordResult::PlaneScale,
     QT_TRANSLATE_NOOP("CoordResult", "The scale of the plane shift (_4s) must not be negative.")},
    {CoordResult::Axes,
     QT_TRANSLATE_NOOP("CoordResult", "The direction of the axes (axis_direction) must be NE, NW, "
                                      "SE or SW, not %1.")},
    {CoordResult::NoGeoidFile,
     QT_TRANSLATE_NOOP("CoordResult", "The geoid is switched on, but no geoid file (geoid_file) "
                                      "is given.")},
    {CoordResult::GeoidFile,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The geoid file %1 (geoid_file) is missing or cannot be read.")},
    {CoordResult::Refused,
     QT_TRANSLATE_NOOP("CoordResult", "The parameters describe no coordinate system: %1.")},
};

} // namespace

std::string describe(const CoordFault& fault)
{
    if (!fault)
        return {};
    const auto* found = std::find_if(std::begin(kSentences), std::end(kSentences),
                                     [&](const Sentence& s) { return s.code == fault.code; });
    if (found == std::end(kSentences)) {
        return QCoreApplication::translate("CoordResult", "The result code %1 is unknown.")
            .arg(static_cast<int>(fault.code))
            .toStdString();
    }
    return QCoreApplication::translate("CoordResult", found->text)
        .replace(QLatin1String("%1"), QString::fromStdString(fault.detail))
        .toStdString();
}

} // namespace lum
