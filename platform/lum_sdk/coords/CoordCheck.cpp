#include "lum_sdk/coords/CoordCheck.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/coords/CoordChain.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>

namespace lum {

namespace {

constexpr const char* kDecimals =
    "ellipsoid_a,ellipsoid_f,org_lon,org_lat,false_east,false_north,factor,project_height,"
    "cutting_radius,parallel_1_lat,parallel_2_lat,p_r,lon1,lon2,lat1,lat2,_7dx,_7dy,_7dz,_7rx,_7ry,"
    "_7rz,_7ppm,_7px,_7py,_7pz,_4dx,_4dy,_4r,_4s,_4x0,_4y0,correct_dx,correct_dy,correct_dh,"
    "fit_a0,fit_a1,fit_a2,fit_a3,fit_a4,fit_a5,fit_x0,fit_y0,ver_x_slope,ver_y_slope,ver_h,ver_x0,"
    "ver_y0,unit_m";
constexpr const char* kWholeNumbers =
    "project_type,_7type,geoid_valid,_4valid,correct_valid,fit_valid,ver_valid";

/// The fault of the first of these keys whose value is not a number. An empty value is none.
CoordParameterFault numberFault(const IDictionary& parameters, std::string_view keys, bool isWhole,
                                const ParameterName& nameOf)
{
    while (!keys.empty()) {
        const std::string key(next_word3(keys, ','));
        const std::string_view text = parameters.text(key);
        const auto number = basalt::wholeDecimal(text);
        if (text.empty() || (number && (!isWhole || *number == parameters.integer(key))))
            continue;
        const QString sentence =
            isWhole ? QCoreApplication::translate("CoordCheck",
                                                  "\"{key}\" must be a whole number, not \"%1\".")
                    : QCoreApplication::translate("CoordCheck",
                                                  "\"{key}\" must be a decimal number, such as "
                                                  "298.257, not \"%1\".");
        std::string name = nameOf ? nameOf(key) : key;
        return {key, withParameterNames(sentence, std::string(text),
                                        [&name](std::string_view) { return name; })};
    }
    return {};
}

/// The parameter to show to the user as the one at fault.
std::string keyAtFault(const CoordFault& fault)
{
    switch (fault.code) {
    case CoordResult::NotANumber:
        return fault.detail;
    case CoordResult::EllipsoidAxis:
        return "ellipsoid_a";
    case CoordResult::EllipsoidFlattening:
        return "ellipsoid_f";
    case CoordResult::KrovakEllipsoid:
        return "ellipsoid_name";
    case CoordResult::ProjectHeight:
        return "project_height";
    case CoordResult::OriginLatitude:
        return "org_lat";
    case CoordResult::OriginLongitude:
        return "org_lon";
    case CoordResult::Parallels:
    case CoordResult::TrueScaleLatitude:
        return "parallel_1_lat";
    case CoordResult::Azimuth:
    case CoordResult::NoAzimuth:
        return "p_r";
    case CoordResult::Factor:
        return "factor";
    case CoordResult::CuttingRadius:
        return "cutting_radius";
    case CoordResult::UnknownDatumShift:
        return "_7type";
    case CoordResult::DatumShiftPivot:
        return "_7px";
    case CoordResult::PlaneScale:
        return "_4s";
    case CoordResult::Axes:
        return kAxesKey;
    case CoordResult::NoGeoidFile:
    case CoordResult::GeoidFile:
        return "geoid_file";
    default:
        return "project_type";
    }
}

} // namespace

CoordParameterFault checkCoordParameters(const IDictionary& parameters, const ParameterName& nameOf)
{
    if (auto fault = numberFault(parameters, kWholeNumbers, true, nameOf))
        return fault;
    if (auto fault = numberFault(parameters, kDecimals, false, nameOf))
        return fault;
    const CoordChain chain(parameters);
    if (!chain.fault())
        return {};
    return {keyAtFault(chain.fault()), describe(chain.fault(), nameOf)};
}

} // namespace lum
