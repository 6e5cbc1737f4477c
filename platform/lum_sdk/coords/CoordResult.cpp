#include "lum_sdk/coords/CoordResult.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <iterator>

namespace lum {

namespace {

struct Sentence
{
    CoordResult code;
    const char* text; ///< for `withParameterNames`; %1 is the fault's detail
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
    {CoordResult::NotANumber, QT_TRANSLATE_NOOP("CoordResult", "\"%1\" is not a finite number.")},
    {CoordResult::EllipsoidAxis,
     QT_TRANSLATE_NOOP("CoordResult", "\"{ellipsoid_a}\" must be positive, in metres.")},
    {CoordResult::EllipsoidFlattening,
     QT_TRANSLATE_NOOP("CoordResult",
                       "\"{ellipsoid_f}\" must be a number like 298.257, or 0 for a sphere.")},
    {CoordResult::KrovakEllipsoid,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The Krovak projection needs the ellipsoid Bessel 1841: \"{ellipsoid_a}\" "
                       "6377397.155, \"{ellipsoid_f}\" 299.1528128.")},
    {CoordResult::ProjectHeight,
     QT_TRANSLATE_NOOP("CoordResult", "\"{project_height}\" must lie within 100 km, in metres.")},
    {CoordResult::NoProjection,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The coordinate system has no map projection (\"{project_type}\").")},
    {CoordResult::UnknownProjection,
     QT_TRANSLATE_NOOP("CoordResult", "\"{project_type}\" has the unknown value %1.")},
    {CoordResult::OriginLatitude,
     QT_TRANSLATE_NOOP("CoordResult", "\"{org_lat}\" does not suit the map projection.")},
    {CoordResult::OriginLongitude,
     QT_TRANSLATE_NOOP("CoordResult", "\"{org_lon}\" must lie within 360 degrees.")},
    {CoordResult::Parallels,
     QT_TRANSLATE_NOOP("CoordResult",
                       "\"{parallel_1_lat}\" and \"{parallel_2_lat}\" do not suit the map "
                       "projection: they must not be opposite, nor both 0.")},
    {CoordResult::TrueScaleLatitude,
     QT_TRANSLATE_NOOP("CoordResult", "\"{parallel_1_lat}\" does not suit the map projection.")},
    {CoordResult::Azimuth,
     QT_TRANSLATE_NOOP("CoordResult",
                       "The oblique projection needs \"{p_r}\", or two points on its central line: "
                       "\"{lat1}\", \"{lon1}\", \"{lat2}\", \"{lon2}\".")},
    {CoordResult::Factor, QT_TRANSLATE_NOOP("CoordResult", "\"{factor}\" must not be negative.")},
    {CoordResult::CuttingRadius,
     QT_TRANSLATE_NOOP("CoordResult", "\"{cutting_radius}\" must be smaller than the ellipsoid, "
                                      "and not negative.")},
    {CoordResult::UnknownDatumShift,
     QT_TRANSLATE_NOOP("CoordResult", "\"{_7type}\" has the unknown value %1.")},
    {CoordResult::DatumShiftPivot,
     QT_TRANSLATE_NOOP("CoordResult", "The Molodensky-Badekas datum shift needs its rotation "
                                      "centre: \"{_7px}\", \"{_7py}\", \"{_7pz}\".")},
    {CoordResult::PlaneScale,
     QT_TRANSLATE_NOOP("CoordResult", "\"{_4s}\" of the plane shift must not be negative.")},
    {CoordResult::NoAzimuth, QT_TRANSLATE_NOOP("CoordResult", "\"{p_r}\" must not be 0.")},
    {CoordResult::Axes, QT_TRANSLATE_NOOP("CoordResult", "\"{axis_direction}\" must be NE, NW, SE "
                                                         "or SW, not %1.")},
    {CoordResult::NoGeoidFile,
     QT_TRANSLATE_NOOP("CoordResult", "The geoid is switched on, but \"{geoid_file}\" is empty.")},
    {CoordResult::GeoidFile,
     QT_TRANSLATE_NOOP("CoordResult", "The geoid file %1 is missing or cannot be read.")},
    {CoordResult::Refused,
     QT_TRANSLATE_NOOP("CoordResult", "The parameters describe no coordinate system: %1.")},
};

} // namespace

std::string withParameterNames(const QString& sentence, const std::string& detail,
                               const ParameterName& nameOf)
{
    static const QRegularExpression kPlace(QStringLiteral("%1|\\{(\\w+)\\}"));
    QString result;
    int end = 0;
    for (auto places = kPlace.globalMatch(sentence); places.hasNext();) {
        const QRegularExpressionMatch place = places.next();
        const std::string key = place.captured(1).toStdString();
        const std::string name = nameOf ? nameOf(key) : key;
        result += sentence.midRef(end, place.capturedStart() - end);
        result += QString::fromStdString(key.empty() ? detail : name);
        end = place.capturedEnd();
    }
    return (result + sentence.midRef(end)).toStdString();
}

std::string describe(const CoordFault& fault, const ParameterName& nameOf)
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
    const bool isDetailAKey = fault.code == CoordResult::NotANumber && nameOf;
    return withParameterNames(QCoreApplication::translate("CoordResult", found->text),
                              isDetailAKey ? nameOf(fault.detail) : fault.detail, nameOf);
}

} // namespace lum
