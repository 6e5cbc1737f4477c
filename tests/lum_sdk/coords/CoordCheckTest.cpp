#include "lum_sdk/coords/CoordCheck.h"

#include "tests/lum_sdk/coords/CoordFixture.h"

using lum::CoordResult;

/// Parameters with a fault, and what the coordinate service and the check of the dialog say.
struct FaultyParameters
{
    const char* changes; ///< of a system that works
    CoordResult code;    ///< success where only the check objects
    const char* key;     ///< the parameter at fault
    const char* named;   ///< what the messages name, when it is not the key
};

// clang-format off
const FaultyParameters kCases[] = {
    {"", CoordResult::Success, "", nullptr},
    {"ellipsoid_a=0", CoordResult::EllipsoidAxis, "ellipsoid_a", nullptr},
    {"ellipsoid_a=", CoordResult::EllipsoidAxis, "ellipsoid_a", nullptr},
    {"ellipsoid_f=0.0033", CoordResult::EllipsoidFlattening, "ellipsoid_f", nullptr},
    {"_7type=1,_7ry=nan", CoordResult::NotANumber, "_7ry", nullptr},
    {"false_east=nan", CoordResult::NotANumber, "false_east", nullptr},
    {"project_type=0", CoordResult::NoProjection, "project_type", nullptr},
    {"project_type=40", CoordResult::UnknownProjection, "project_type", nullptr},
    {"project_height=200000", CoordResult::ProjectHeight, "project_height", nullptr},
    {"org_lat=90.5", CoordResult::OriginLatitude, "org_lat", nullptr},
    {"org_lon=-361", CoordResult::OriginLongitude, "org_lon", nullptr},
    {"project_type=2,org_lon=1e10", CoordResult::OriginLongitude, "org_lon", nullptr},
    {"project_type=3", CoordResult::OriginLatitude, "org_lat", nullptr},
    {"project_type=7", CoordResult::OriginLatitude, "org_lat", nullptr},
    {"project_type=8", CoordResult::Parallels, "parallel_1_lat", nullptr},
    {"project_type=8,parallel_1_lat=-20,parallel_2_lat=20",
     CoordResult::Parallels, "parallel_1_lat", nullptr},
    {"project_type=7,org_lat=90,parallel_1_lat=-70",
     CoordResult::TrueScaleLatitude, "parallel_1_lat", nullptr},
    {"project_type=5,org_lat=4", CoordResult::Azimuth, "p_r", nullptr},
    {"project_type=11,org_lat=49.5", // the ellipsoid is chosen by its name
     CoordResult::KrovakEllipsoid, "ellipsoid_name", "Bessel 1841"},
    {"factor=-1", CoordResult::Factor, "factor", nullptr},
    {"project_type=6,org_lat=52,cutting_radius=7e6", CoordResult::CuttingRadius,
     "cutting_radius", nullptr},
    {"_7type=4", CoordResult::UnknownDatumShift, "_7type", nullptr},
    {"_7type=3,_7rz=1", CoordResult::DatumShiftPivot, "_7px", nullptr},
    {"_4valid=1,_4s=-1", CoordResult::PlaneScale, "_4s", nullptr},
    {"axis_direction=WS", CoordResult::Axes, "axis_direction", nullptr},
    {"axis_direction=1", CoordResult::Success, "", nullptr}, // of another program: north and east
    {"project_type=13", CoordResult::NoAzimuth, "p_r", nullptr},
    {"unit_m=feet", CoordResult::Success, "unit_m", nullptr},
    {"geoid_valid=1", CoordResult::NoGeoidFile, "geoid_file", nullptr},
    {"geoid_valid=1,geoid_file=/nowhere/a.gtx", CoordResult::GeoidFile, "geoid_file",
     "/nowhere/a.gtx"},
    {"geoid_valid=1,geoid_file=@missing.gtx", CoordResult::GeoidFile, "geoid_file",
     "@missing.gtx"},
    {"org_lat=", CoordResult::Success, "", nullptr},
    {"project_type=1.0", CoordResult::Success, "", nullptr},
    {"org_lon=abc", CoordResult::Success, "org_lon", nullptr},
    {"org_lon=117E", CoordResult::Success, "org_lon", nullptr},
    {"ellipsoid_f=\"298,257\"", CoordResult::Success, "ellipsoid_f", nullptr},
    {"project_type=2.7", CoordResult::Success, "project_type", nullptr},
    {"project_type=1e1", CoordResult::Success, "project_type", nullptr},
};
// clang-format on

TEST(CoordCheck, NamesTheParameterAtFault)
{
    for (const auto& [changes, code, key, named] : kCases) {
        SCOPED_TRACE(changes);
        const char* const part = named != nullptr ? named : key;
        const basalt::Dictionary system = gaussKruger(changes);
        CoordService service(system);
        service.toGrid(40, 117);
        EXPECT_EQ(service.initCode, static_cast<int>(code));
        const auto fault = lum::checkCoordParameters(system);
        EXPECT_EQ(fault.key, key);
        EXPECT_EQ(bool(fault), fault.key != "");
        EXPECT_NE(fault.message.find(part), std::string::npos) << fault.message;
        EXPECT_EQ(fault.message.find_first_of("%{}"), std::string::npos) << fault.message;
        const auto shown = lum::checkCoordParameters(system, [](auto) { return "Row {%1"; });
        EXPECT_EQ(shown.key, key);
        EXPECT_EQ(shown.message.find('_'), std::string::npos) << shown.message;
        EXPECT_EQ(fault && (named == nullptr || fault.key == "ellipsoid_name"),
                  shown.message.find("Row {%1") != std::string::npos)
            << shown.message;
        if (code != CoordResult::Success) {
            EXPECT_EQ(service.code, service.initCode);
            EXPECT_NE(service.message().find(part), std::string::npos);
        }
    }
}
