#include "lum_sdk/coords/CoordProjections.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/Numbers.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace lum {

namespace {

enum Code
{
    TransverseMercator = 1,
    Utm = kUtmCode,
    LambertConformal,
    Mercator,
    ObliqueMercator,
    ObliqueStereographic,
    PolarStereographic,
    Albers,
    Cassini,
    Polyconic,
    Krovak,
    SwissOblique,
    HotineNaturalOrigin,
    LambertAzimuthal,
    ColombiaUrban,
};

// Each entry is one choice of the dialog.
constexpr std::array kProjections = {
    ProjectionKind{TransverseMercator, QT_TRANSLATE_NOOP("CoordProjections", "Transverse Mercator"),
                   "org_lon,org_lat,factor,false_east,false_north"},
    ProjectionKind{Utm, QT_TRANSLATE_NOOP("CoordProjections", "UTM"), "org_lon,false_north"},
    ProjectionKind{LambertConformal,
                   QT_TRANSLATE_NOOP("CoordProjections", "Lambert conformal conic"),
                   "org_lon,org_lat,parallel_1_lat,parallel_2_lat,factor,false_east,false_north"},
    ProjectionKind{Mercator, QT_TRANSLATE_NOOP("CoordProjections", "Mercator"),
                   "org_lon,parallel_1_lat,factor,false_east,false_north"},
    ProjectionKind{ObliqueMercator, QT_TRANSLATE_NOOP("CoordProjections", "Oblique Mercator"),
                   "org_lon,org_lat,p_r,parallel_1_lat,lat1,lon1,lat2,lon2,factor,false_east,"
                   "false_north"},
    ProjectionKind{ObliqueStereographic,
                   QT_TRANSLATE_NOOP("CoordProjections", "Oblique stereographic"),
                   "org_lon,org_lat,factor,cutting_radius,false_east,false_north"},
    ProjectionKind{PolarStereographic, QT_TRANSLATE_NOOP("CoordProjections", "Polar stereographic"),
                   "org_lon,org_lat,parallel_1_lat,factor,cutting_radius,false_east,false_north"},
    ProjectionKind{Albers, QT_TRANSLATE_NOOP("CoordProjections", "Albers equal area"),
                   "org_lon,org_lat,parallel_1_lat,parallel_2_lat,factor,false_east,false_north"},
    ProjectionKind{Cassini, QT_TRANSLATE_NOOP("CoordProjections", "Cassini-Soldner"),
                   "org_lon,org_lat,factor,false_east,false_north"},
    ProjectionKind{Polyconic, QT_TRANSLATE_NOOP("CoordProjections", "American polyconic"),
                   "org_lon,org_lat,factor,false_east,false_north"},
    ProjectionKind{Krovak, QT_TRANSLATE_NOOP("CoordProjections", "Krovak (north and east)"),
                   "org_lon,org_lat,factor,false_east,false_north"},
    ProjectionKind{SwissOblique, QT_TRANSLATE_NOOP("CoordProjections", "Swiss oblique Mercator"),
                   "org_lon,org_lat,factor,false_east,false_north"},
    ProjectionKind{HotineNaturalOrigin,
                   QT_TRANSLATE_NOOP("CoordProjections", "Hotine oblique Mercator (variant A)"),
                   "org_lon,org_lat,p_r,parallel_1_lat,factor,false_east,false_north"},
    ProjectionKind{LambertAzimuthal,
                   QT_TRANSLATE_NOOP("CoordProjections", "Lambert azimuthal equal area"),
                   "org_lon,org_lat,factor,false_east,false_north"},
    ProjectionKind{ColombiaUrban, QT_TRANSLATE_NOOP("CoordProjections", "Colombia urban"),
                   "org_lon,org_lat,factor,false_east,false_north"},
};

constexpr std::array kEllipsoids = {
    KnownEllipsoid{"WGS 84", 6378137, 298.257223563},
    KnownEllipsoid{"GRS 1980", 6378137, 298.257222101},
    KnownEllipsoid{"CGCS2000", 6378137, 298.257222101},
    KnownEllipsoid{"Krassowsky 1940", 6378245, 298.3},
    KnownEllipsoid{"IAG 1975", 6378140, 298.257},
    KnownEllipsoid{"International 1924", 6378388, 297},
    KnownEllipsoid{"Clarke 1866", 6378206.4, 294.978698213898},
    KnownEllipsoid{"Clarke 1880 (RGS)", 6378249.145, 293.465},
    KnownEllipsoid{"Clarke 1880 (IGN)", 6378249.2, 293.466021293627},
    KnownEllipsoid{"Bessel 1841", 6377397.155, 299.1528128},
    KnownEllipsoid{"Airy 1830", 6377563.396, 299.3249646},
    KnownEllipsoid{"Airy Modified 1849", 6377340.189, 299.3249646},
    KnownEllipsoid{"Everest 1830 (1937 Adjustment)", 6377276.345, 300.8017},
    KnownEllipsoid{"Everest 1830 (RSO 1969)", 6377295.664, 300.8017},
    KnownEllipsoid{"Everest 1830 (1967 Definition)", 6377298.556, 300.8017},
    KnownEllipsoid{"Australian National Spheroid", 6378160, 298.25},
    KnownEllipsoid{"GRS 1967", 6378160, 298.247167427},
    KnownEllipsoid{"Helmert 1906", 6378200, 298.3},
    KnownEllipsoid{"Hough 1960", 6378270, 297},
    KnownEllipsoid{"Indonesian National Spheroid", 6378160, 298.247},
    KnownEllipsoid{"WGS 72", 6378135, 298.26},
    KnownEllipsoid{"PZ-90", 6378136, 298.257839303},
};

constexpr double kDegree = std::numbers::pi / 180;

/// Reads the keys of one projection and remembers the first fault.
class Reader
{
public:
    Reader(const IDictionary& parameters, CoordFault& fault)
        : m_parameters(parameters), m_fault(fault)
    {
    }

    double number(const char* key)
    {
        const double value = m_parameters.number(key);
        check(std::isfinite(value), CoordResult::NotANumber, key);
        return value;
    }

    double latitude(const char* key, CoordResult code)
    {
        const double value = number(key);
        check(std::abs(value) <= 90, code);
        return value;
    }

    double longitude(const char* key)
    {
        const double value = number(key);
        check(std::abs(value) <= 360, CoordResult::OriginLongitude);
        return value;
    }

    void check(bool isGood, CoordResult code, std::string detail = {})
    {
        if (!isGood && !m_fault)
            m_fault = {code, std::move(detail)};
    }

    static std::string item(const char* name, double value)
    {
        return std::string(" +") + name + '=' + basalt::formatShortest(value);
    }

private:
    const IDictionary& m_parameters;
    CoordFault& m_fault;
};

std::string lambert(Reader& reader)
{
    const double origin = reader.latitude("org_lat", CoordResult::OriginLatitude);
    double first = reader.latitude("parallel_1_lat", CoordResult::Parallels);
    double second = reader.latitude("parallel_2_lat", CoordResult::Parallels);
    const bool isOneParallel = first == 0 && second == 0;
    if (isOneParallel) {
        first = second = origin;
        reader.check(origin != 0 && std::abs(origin) < 90, CoordResult::OriginLatitude);
    } else if (second == 0) {
        second = first;
    }
    reader.check(isOneParallel || std::abs(first + second) > 1e-9, CoordResult::Parallels);
    return "+proj=lcc" + Reader::item("lat_0", origin) + Reader::item("lat_1", first) +
           Reader::item("lat_2", second);
}

std::string albers(Reader& reader)
{
    const double first = reader.latitude("parallel_1_lat", CoordResult::Parallels);
    const double second = reader.latitude("parallel_2_lat", CoordResult::Parallels);
    reader.check(std::abs(first + second) > 1e-9, CoordResult::Parallels);
    return "+proj=aea" +
           Reader::item("lat_0", reader.latitude("org_lat", CoordResult::OriginLatitude)) +
           Reader::item("lat_1", first) + Reader::item("lat_2", second);
}

std::string mercator(Reader& reader)
{
    const double parallel = reader.latitude("parallel_1_lat", CoordResult::TrueScaleLatitude);
    reader.check(std::abs(parallel) < 90, CoordResult::TrueScaleLatitude);
    return "+proj=merc" + Reader::item("lat_ts", parallel);
}

std::string obliqueMercator(Reader& reader, bool isFromCentre)
{
    const double origin = reader.latitude("org_lat", CoordResult::OriginLatitude);
    reader.check(std::abs(origin) < 90, CoordResult::OriginLatitude);
    const std::string centre =
        (isFromCentre ? "+proj=omerc" : "+proj=omerc +no_uoff") + Reader::item("lat_0", origin);
    const double azimuth = reader.number("p_r");
    if (azimuth != 0 || !isFromCentre) {
        reader.check(azimuth != 0, CoordResult::NoAzimuth);
        const double turn = reader.number("parallel_1_lat");
        return centre + Reader::item("lonc", reader.longitude("org_lon")) +
               Reader::item("alpha", azimuth) + Reader::item("gamma", turn == 0 ? azimuth : turn);
    }
    const double first = reader.latitude("lat1", CoordResult::Azimuth);
    const double second = reader.latitude("lat2", CoordResult::Azimuth);
    reader.check(first != second, CoordResult::Azimuth); // the formulas exclude it
    return centre + Reader::item("lat_1", first) + Reader::item("lon_1", reader.longitude("lon1")) +
           Reader::item("lat_2", second) + Reader::item("lon_2", reader.longitude("lon2"));
}

std::string polarStereographic(Reader& reader)
{
    const double origin = reader.latitude("org_lat", CoordResult::OriginLatitude);
    reader.check(origin != 0, CoordResult::OriginLatitude);
    const double pole = std::copysign(90, origin);
    const double parallel = reader.latitude("parallel_1_lat", CoordResult::TrueScaleLatitude);
    reader.check(parallel * pole >= 0, CoordResult::TrueScaleLatitude);
    return "+proj=stere" + Reader::item("lat_0", pole) +
           Reader::item("lat_ts", parallel == 0 ? pole : parallel);
}

/// For projections that need only an origin.
std::string centred(const char* name, Reader& reader)
{
    return std::string("+proj=") + name +
           Reader::item("lat_0", reader.latitude("org_lat", CoordResult::OriginLatitude));
}

std::string specificText(int code, Reader& reader)
{
    switch (code) {
    case TransverseMercator:
        return centred("tmerc", reader);
    case Utm:
        return "+proj=tmerc +lat_0=0";
    case LambertConformal:
        return lambert(reader);
    case Mercator:
        return mercator(reader);
    case ObliqueMercator:
        return obliqueMercator(reader, true);
    case HotineNaturalOrigin:
        return obliqueMercator(reader, false);
    case ObliqueStereographic:
        return centred("sterea", reader);
    case PolarStereographic:
        return polarStereographic(reader);
    case Albers:
        return albers(reader);
    case Cassini:
        return centred("cass", reader);
    case Polyconic:
        return centred("poly", reader);
    case Krovak:
        return centred("krovak", reader);
    case SwissOblique:
        return centred("somerc", reader);
    case LambertAzimuthal:
        return centred("laea", reader);
    case ColombiaUrban:
        return centred("col_urban", reader) + Reader::item("h_0", reader.number("project_height"));
    default:
        reader.check(code != 0, CoordResult::NoProjection);
        reader.check(false, CoordResult::UnknownProjection, std::to_string(code));
        return {};
    }
}

/// The scale at the centre of a stereographic plane that is true at a chord of `radiusM` from it:
/// 1 - (r / 2R)^2 on the sphere that fits the ellipsoid there.
double cuttingFactor(Reader& reader, double radiusM, double semiMajorM, double inverseFlattening)
{
    const double f = inverseFlattening == 0 ? 0 : 1 / inverseFlattening;
    const double sine = std::sin(reader.number("org_lat") * kDegree);
    const double e2 = f * (2 - f);
    const double sphereM = semiMajorM * std::sqrt(1 - e2) / (1 - e2 * sine * sine);
    reader.check(radiusM > 0 && radiusM < sphereM, CoordResult::CuttingRadius);
    return 1 - std::pow(radiusM / sphereM / 2, 2);
}

bool isAxes(std::string_view text)
{
    return text == "NE" || text == "NW" || text == "SE" || text == "SW";
}

std::string ellipsoidText(double semiMajorM, double inverseFlattening)
{
    return inverseFlattening == 0
               ? Reader::item("R", semiMajorM)
               : Reader::item("a", semiMajorM) + Reader::item("rf", inverseFlattening);
}

} // namespace

std::span<const ProjectionKind> projectionKinds()
{
    return kProjections;
}

const ProjectionKind* projectionKind(const IDictionary& parameters)
{
    const int code = parameters.integer("project_type");
    const auto* const found = std::find_if(kProjections.begin(), kProjections.end(),
                                           [code](const auto& kind) { return kind.code == code; });
    return found == kProjections.end() ? nullptr : found;
}

double utmCentralMeridian(double longitudeDeg)
{
    const double meridianDeg = std::floor(longitudeDeg / 6) * 6 + 3;
    return std::remainder(meridianDeg, 360);
}

PlaneAxes planeAxes(const IDictionary& parameters)
{
    const std::string_view text = parameters.text(kAxesKey); // other programs have numbers in it
    return isAxes(text) ? PlaneAxes{text[0] == 'S', text[1] == 'W'} : PlaneAxes();
}

std::span<const KnownEllipsoid> knownEllipsoids()
{
    return kEllipsoids;
}

ProjectionText projectionText(const IDictionary& parameters, CoordFault& fault)
{
    Reader reader(parameters, fault);
    const double axis = reader.number("ellipsoid_a");
    reader.check(axis > 0, CoordResult::EllipsoidAxis);
    const double flattening = reader.number("ellipsoid_f");
    reader.check(flattening == 0 || flattening > 1, CoordResult::EllipsoidFlattening);
    const double height = reader.number("project_height");
    reader.check(std::abs(height) <= 100000, CoordResult::ProjectHeight);

    const int code = parameters.integer("project_type");
    ProjectionText text;
    text.ellipsoid = ellipsoidText(axis, flattening);
    text.projection = specificText(code, reader) + " +k_0=1" + text.ellipsoid;
    // PROJ computes Krovak on this ellipsoid only, and ignores any other.
    reader.check(code != Krovak || (std::abs(axis - 6377397.155) < 0.01 &&
                                    std::abs(flattening - 299.1528128) < 1e-6),
                 CoordResult::KrovakEllipsoid);
    text.isInverseRough = code == LambertAzimuthal || code == ColombiaUrban;
    const std::string_view axesText = parameters.text(kAxesKey);
    reader.check(axesText.size() != 2 || isAxes(axesText), CoordResult::Axes,
                 std::string(axesText));
    text.axes = planeAxes(parameters);
    const double stretch = code == ColombiaUrban ? 1 : 1 + height / axis;
    text.falseNorth = reader.number("false_north");
    if (code == Utm) {
        const double longitude = reader.longitude("org_lon");
        text.projection += Reader::item("lon_0", utmCentralMeridian(longitude));
        text.factor = kUtmFactor * stretch;
        text.falseEast = kUtmFalseEastM;
        return text;
    }
    if (code != ObliqueMercator && code != HotineNaturalOrigin)
        text.projection += Reader::item("lon_0", reader.longitude("org_lon"));
    text.falseEast = reader.number("false_east");
    text.factor = reader.number("factor");
    reader.check(text.factor >= 0, CoordResult::Factor);
    if (text.factor == 0)
        text.factor = 1;
    const double radius = reader.number("cutting_radius");
    if (radius != 0 && (code == ObliqueStereographic || code == PolarStereographic))
        text.factor = cuttingFactor(reader, radius, axis, flattening);
    text.factor *= stretch;
    return text;
}

} // namespace lum
