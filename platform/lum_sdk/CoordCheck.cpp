#include "lum_sdk/CoordCheck.h"

#include "lum_sdk/CoordChain.h"

namespace lum {

namespace {

/// The parameter that a user would look at first.
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
        return "parallel_1_lat";
    case CoordResult::Azimuth:
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
    case CoordResult::NoGeoidFile:
    case CoordResult::GeoidFile:
        return "geoid_file";
    default:
        return "project_type";
    }
}

} // namespace

CoordParameterFault checkCoordParameters(const IDictionary& parameters)
{
    const CoordChain chain(parameters);
    if (!chain.fault())
        return {};
    return {keyAtFault(chain.fault()), describe(chain.fault())};
}

} // namespace lum
