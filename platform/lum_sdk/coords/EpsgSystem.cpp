#include "lum_sdk/coords/EpsgSystem.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/EpsgDatumShift.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjHandles.h"

#include <QCoreApplication>
#include <QString>

#include <array>
#include <cmath>
#include <map>
#include <numbers>

namespace lum {

namespace {

/// The conversion of a projected system: method and parameters by their codes in the register,
/// angles in degrees, lengths in metres.
struct Conversion
{
    int method = 0;
    QString methodName;
    std::map<int, double> values;

    /// The value of the first of these parameters that the method has.
    [[nodiscard]] double value(std::initializer_list<int> codes, double fallback = 0) const
    {
        for (const int code : codes) {
            if (const auto found = values.find(code); found != values.end())
                return found->second;
        }
        return fallback;
    }
};

Conversion conversionOf(PJ_CONTEXT* context, const PJ* crs)
{
    Conversion result;
    const ProjObject operation(proj_crs_get_coordoperation(context, crs));
    const char* name = nullptr;
    const char* code = nullptr;
    if (!operation ||
        proj_coordoperation_get_method_info(context, operation.get(), &name, nullptr, &code) == 0)
        return result;
    result.methodName = QString::fromUtf8(name);
    result.method = basalt::parseInteger(code != nullptr ? code : "");
    const int count = proj_coordoperation_get_param_count(context, operation.get());
    for (int i = 0; i < count; ++i) {
        const char* category = nullptr;
        double value = 0;
        double unit = 1;
        if (proj_coordoperation_get_param(context, operation.get(), i, nullptr, nullptr, &code,
                                          &value, nullptr, &unit, nullptr, nullptr, nullptr,
                                          &category) == 0 ||
            code == nullptr)
            continue;
        const bool isAngle = category != nullptr && std::string_view(category) == "angular";
        const double factor = isAngle ? unit * 180 / std::numbers::pi : unit;
        result.values[basalt::parseInteger(code)] = value * factor;
    }
    return result;
}

/// The unit of the plane axes in metres; 0 when they do not point north and east.
double planeUnitM(PJ_CONTEXT* context, const PJ* crs, bool isPolar)
{
    const ProjObject system(proj_crs_get_coordinate_system(context, crs));
    double unit = 0;
    for (int i = 0; i < 2; ++i) {
        const char* direction = nullptr;
        if (!system || proj_cs_get_axis_info(context, system.get(), i, nullptr, nullptr, &direction,
                                             &unit, nullptr, nullptr, nullptr) == 0)
            return 0;
        const std::string_view d(direction);
        if (d != "north" && d != "east" && !(isPolar && d == "south"))
            return 0;
    }
    return unit;
}

constexpr int kTransverseMercator = 9807;
constexpr int kLambertOneParallel = 9801;
constexpr int kLambertTwoParallels = 9802;
constexpr int kMercatorA = 9804;
constexpr int kMercatorB = 9805;
constexpr int kWebMercator = 1024;
constexpr int kHotineA = 9812;
constexpr int kHotineB = 9815;
constexpr int kObliqueStereographic = 9809;
constexpr int kPolarA = 9810;
constexpr int kPolarB = 9829;
constexpr int kAlbers = 9822;
constexpr int kCassini = 9806;
constexpr int kPolyconic = 9818;
constexpr int kKrovakNorth = 1041;

/// The code of "project_type"; 0 when the service has no such projection.
int projectType(const Conversion& conversion)
{
    switch (conversion.method) {
    case kTransverseMercator:
        return 1;
    case kLambertOneParallel:
    case kLambertTwoParallels:
        return 3;
    case kMercatorA:
    case kMercatorB:
    case kWebMercator:
        return 4;
    case kHotineA:
        return 5;
    case kHotineB: // the Swiss form is the one along the parallel
        return conversion.value({8813}) == 90 && conversion.value({8814}) == 90 ? 12 : 5;
    case kObliqueStereographic:
        return 6;
    case kPolarA:
    case kPolarB:
        return 7;
    case kAlbers:
        return 8;
    case kCassini:
        return 9;
    case kPolyconic:
        return 10;
    case kKrovakNorth: // cone axis and pseudo standard parallel are constants of the projection
        return std::abs(conversion.value({1036}) - 30.2881397527778) < 1e-6 &&
                       std::abs(conversion.value({8818}) - 78.5) < 1e-9
                   ? 11
                   : 0;
    default:
        return 0;
    }
}

void fillEllipsoid(PJ_CONTEXT* context, const PJ* crs, bool isSphere, IDictionary& to)
{
    const ProjObject ellipsoid(proj_get_ellipsoid(context, crs));
    double semiMajor = 0;
    double inverseFlattening = 0;
    proj_ellipsoid_get_parameters(context, ellipsoid.get(), &semiMajor, nullptr, nullptr,
                                  &inverseFlattening);
    dic_set_value(to, "ellipsoid_name", proj_get_name(ellipsoid.get()));
    dic_set_value(to, "ellipsoid_a", semiMajor);
    dic_set_value(to, "ellipsoid_f", isSphere ? 0.0 : inverseFlattening);
}

double primeMeridianDeg(PJ_CONTEXT* context, const PJ* crs)
{
    const ProjObject meridian(proj_get_prime_meridian(context, crs));
    double longitude = 0;
    double unit = 1;
    if (meridian)
        proj_prime_meridian_get_parameters(context, meridian.get(), &longitude, &unit, nullptr);
    return longitude * unit * 180 / std::numbers::pi;
}

/// Where the centre of an oblique Mercator lies from its natural origin, metres east and north.
std::array<double, 2> hotineCentre(PJ_CONTEXT* context, const Conversion& conversion,
                                   const IDictionary& ellipsoid)
{
    const auto item = [](const char* name, double value) {
        return std::string(" +") + name + '=' + basalt::formatShortest(value);
    };
    const double latitude = conversion.value({8811});
    const double longitude = conversion.value({8812});
    const ProjObject projection(proj_create(
        context,
        ("+proj=omerc +no_uoff" + item("lat_0", latitude) + item("lonc", longitude) +
         item("alpha", conversion.value({8813})) + item("gamma", conversion.value({8814})) +
         item("k_0", conversion.value({8815})) + item("a", ellipsoid.number("ellipsoid_a")) +
         item("rf", ellipsoid.number("ellipsoid_f")))
            .c_str()));
    constexpr double kDegree = std::numbers::pi / 180;
    const PJ_COORD centre = proj_trans(projection.get(), PJ_FWD,
                                       proj_coord(longitude * kDegree, latitude * kDegree, 0, 0));
    return {centre.xy.x, centre.xy.y};
}

void fillProjection(PJ_CONTEXT* context, const PJ* crs, const Conversion& from, double unitM,
                    IDictionary& to)
{
    const auto set = [&](const char* key, double value) { dic_set_value(to, key, value); };
    const int type = projectType(from);
    double origin = from.value({8801, 8811, 8821});
    double easting = from.value({8806, 8816, 8826});
    double northing = from.value({8807, 8817, 8827});
    if (from.method == kPolarB)
        origin = std::copysign(90, from.value({8832}));
    if (from.method == kHotineA) {
        const auto [east, north] = hotineCentre(context, from, to);
        easting += east;
        northing += north;
    }
    dic_set_value(to, "project_type", type);
    set("org_lat", origin);
    set("org_lon", from.value({8802, 8812, 8822, 8833}) + primeMeridianDeg(context, crs));
    set("false_east", easting / unitM);
    set("false_north", northing / unitM);
    set("factor", from.value({8805, 8815, 8819}, 1) / unitM);
    set("parallel_1_lat", from.value({8823, 8832}));
    set("parallel_2_lat", from.value({8824}));
    set("p_r", 0);
    if (type == 5) {
        set("p_r", from.value({8813}));
        set("parallel_1_lat", from.value({8814}));
    }
    for (const char* key : {"project_height", "cutting_radius", "lon1", "lon2", "lat1", "lat2"})
        set(key, 0);
}

/// Gives a UTM system its own code of "project_type".
void nameUtm(const char* name, IDictionary& to)
{
    const double zone = (to.number("org_lon") + 183) / 6;
    const double north = to.number("false_north");
    if (std::string_view(name).find("UTM zone") != std::string_view::npos &&
        to.integer("project_type") == 1 && to.number("factor") == kUtmFactor &&
        to.number("false_east") == kUtmFalseEastM && to.number("org_lat") == 0 &&
        zone == std::round(zone) && (north == 0 || north == 10000000))
        dic_set_value(to, "project_type", kUtmCode);
}

} // namespace

} // namespace lum

std::string fillFromEpsg(std::string_view code, IDictionary& parameters)
{
    using namespace lum;
    const ProjContext context = makeProjContext();
    const std::string codeText(code);
    const QString shownCode = QString::fromStdString(codeText);
    const ProjObject crs(proj_create_from_database(context.get(), "EPSG", codeText.c_str(),
                                                   PJ_CATEGORY_CRS, 0, nullptr));
    if (!crs)
        return QCoreApplication::translate("EpsgSystem", "There is no coordinate system EPSG:%1.")
            .arg(shownCode)
            .toStdString();
    const PJ_TYPE type = proj_get_type(crs.get());
    if (type == PJ_TYPE_GEOGRAPHIC_2D_CRS || type == PJ_TYPE_GEOGRAPHIC_3D_CRS)
        return QCoreApplication::translate("EpsgSystem",
                                           "EPSG:%1 (%2) is geographic; choose a projected system.")
            .arg(shownCode, QString::fromUtf8(proj_get_name(crs.get())))
            .toStdString();
    if (type != PJ_TYPE_PROJECTED_CRS)
        return QCoreApplication::translate("EpsgSystem",
                                           "EPSG:%1 is no projected coordinate system.")
            .arg(shownCode)
            .toStdString();
    const Conversion conversion = conversionOf(context.get(), crs.get());
    if (projectType(conversion) == 0)
        return QCoreApplication::translate(
                   "EpsgSystem", "EPSG:%1 uses the map projection \"%2\", which is not supported.")
            .arg(shownCode, conversion.methodName)
            .toStdString();
    const bool isPolar = projectType(conversion) == 7;
    const double unitM = planeUnitM(context.get(), crs.get(), isPolar);
    if (unitM <= 0)
        return QCoreApplication::translate(
                   "EpsgSystem",
                   "The axes of EPSG:%1 do not point north and east, which is not supported.")
            .arg(shownCode)
            .toStdString();

    basalt::Dictionary filled;
    fillEllipsoid(context.get(), crs.get(), conversion.method == kWebMercator, filled);
    fillProjection(context.get(), crs.get(), conversion, unitM, filled);
    nameUtm(proj_get_name(crs.get()), filled);
    const EpsgDatumShifts shifts = epsgDatumShifts(code);
    (shifts.best() != nullptr ? shifts.best()->shift : DatumShift()).toDictionary(filled);
    for (const char* key : {"_4valid", "correct_valid", "fit_valid", "ver_valid"})
        dic_set_value(filled, key, 0);
    dictionary_copy(filled, parameters);
    setLengthUnit(lengthUnit(unitM), parameters);
    return {};
}

std::string epsgName(std::string_view code)
{
    const lum::ProjContext context = lum::makeProjContext();
    const lum::ProjObject crs(proj_create_from_database(
        context.get(), "EPSG", std::string(code).c_str(), PJ_CATEGORY_CRS, 0, nullptr));
    return crs ? proj_get_name(crs.get()) : std::string();
}
