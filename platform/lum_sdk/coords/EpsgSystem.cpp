#include "lum_sdk/coords/EpsgSystem.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/EpsgDatumShift.h"
#include "lum_sdk/coords/EpsgMethods.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjHandles.h"

#include <QCoreApplication>
#include <QString>

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

struct Axes
{
    double unitM = 1;
    PlaneAxes directions;
};

/// \param isPolar  at a pole both axes are named after the same direction, and east is as usual
Axes axesOf(PJ_CONTEXT* context, const PJ* crs, bool isPolar)
{
    Axes axes;
    const ProjObject system(proj_crs_get_coordinate_system(context, crs));
    for (int i = 0; i < 2; ++i) {
        const char* direction = nullptr;
        if (system && proj_cs_get_axis_info(context, system.get(), i, nullptr, nullptr, &direction,
                                            &axes.unitM, nullptr, nullptr, nullptr) != 0) {
            axes.directions.isSouth |= !isPolar && std::string_view(direction) == "south";
            axes.directions.isWest |= !isPolar && std::string_view(direction) == "west";
        }
    }
    return axes;
}

/// The code of "project_type"; 0 when the service has no such projection.
int projectType(const Conversion& conversion)
{
    using namespace epsg_method;
    const EpsgMethod* const method = findEpsgMethod(conversion.method);
    if (method == nullptr)
        return 0;
    if (method->code == kHotineB) // the Swiss form is the one along the parallel
        return conversion.value({8813}) == 90 && conversion.value({8814}) == 90
                   ? 12
                   : method->projectType;
    if (method->code == kKrovak || method->code == kKrovakNorth) {
        // cone axis and pseudo standard parallel are constants of the projection
        const bool isUsual = std::abs(conversion.value({1036}) - 30.2881397527778) < 1e-6 &&
                             std::abs(conversion.value({8818}) - 78.5) < 1e-9;
        return isUsual ? method->projectType : 0;
    }
    return method->projectType;
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

bool isAtPole(const Conversion& conversion)
{
    return projectType(conversion) == 7 || std::abs(conversion.value({8801})) == 90;
}

void fillProjection(PJ_CONTEXT* context, const PJ* crs, const Conversion& from, const Axes& axes,
                    IDictionary& to)
{
    const auto set = [&](const char* key, double value) { dic_set_value(to, key, value); };
    const int type = projectType(from);
    const bool isPolarB = from.method == epsg_method::kPolarB;
    dic_set_value(to, "project_type", type);
    set("org_lat",
        isPolarB ? std::copysign(90, from.value({8832})) : from.value({8801, 8811, 8821}));
    set("org_lon", from.value({8802, 8812, 8822, 8833}) + primeMeridianDeg(context, crs));
    set("false_east", from.value({8806, 8816, 8826}) / axes.unitM);
    set("false_north", from.value({8807, 8817, 8827}) / axes.unitM);
    set("factor", from.value({8805, 8815, 8819, 1038}, 1) / axes.unitM);
    set("parallel_1_lat", from.value({8823, 8832}));
    set("parallel_2_lat", from.value({8824}));
    set("p_r", 0);
    if (type == 5 || type == 13) {
        set("p_r", from.value({8813}));
        set("parallel_1_lat", from.value({8814}));
    }
    set("project_height", from.value({1039}));
    for (const char* key : {"cutting_radius", "lon1", "lon2", "lat1", "lat2"})
        set(key, 0);
}

void setAxes(const Axes& axes, IDictionary& parameters)
{
    const std::string directions{axes.directions.isSouth ? 'S' : 'N',
                                 axes.directions.isWest ? 'W' : 'E'};
    if (directions != "NE" || parameters.contains(kAxesKey))
        parameters.set(kAxesKey, directions);
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

std::string fillProjectionFromEpsg(std::string_view code, IDictionary& parameters)
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

    const Axes axes = axesOf(context.get(), crs.get(), isAtPole(conversion));
    basalt::Dictionary filled;
    const bool isSphere = conversion.method == epsg_method::kWebMercator;
    fillEllipsoid(context.get(), crs.get(), isSphere, filled);
    fillProjection(context.get(), crs.get(), conversion, axes, filled);
    nameUtm(proj_get_name(crs.get()), filled);
    dictionary_copy(filled, parameters);
    setAxes(axes, parameters);
    setLengthUnit(lengthUnit(axes.unitM), parameters);
    return {};
}

std::string fillFromEpsg(std::string_view code, IDictionary& parameters)
{
    if (std::string reason = fillProjectionFromEpsg(code, parameters); !reason.empty())
        return reason;
    const lum::EpsgDatumShifts shifts = lum::epsgDatumShifts(code);
    const lum::DatumShift shift =
        shifts.best() != nullptr ? shifts.best()->shift : lum::DatumShift();
    shift.toDictionary(parameters);
    for (const char* key : {"_4valid", "correct_valid", "fit_valid", "ver_valid"})
        dic_set_value(parameters, key, 0);
    return {};
}

std::string epsgName(std::string_view code)
{
    const lum::ProjContext context = lum::makeProjContext();
    const lum::ProjObject crs(proj_create_from_database(
        context.get(), "EPSG", std::string(code).c_str(), PJ_CATEGORY_CRS, 0, nullptr));
    return crs ? proj_get_name(crs.get()) : std::string();
}
