#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjHandles.h"
#include "tests/lum_sdk/coords/CoordFixture.h"

#include <cmath>
#include <numbers>
#include <set>

// Every projected system of the register, beside PROJ's own way to it.

namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kToleranceM = 1e-3;

/// PROJ's projection of a system, from its own datum.
class Reference
{
public:
    Reference(PJ_CONTEXT* context, const char* code)
    {
        const ProjObject crs(
            proj_create_from_database(context, "EPSG", code, PJ_CATEGORY_CRS, 0, nullptr));
        const ProjObject base(proj_crs_get_geodetic_crs(context, crs.get()));
        m_way.reset(
            proj_create_crs_to_crs_from_pj(context, base.get(), crs.get(), nullptr, nullptr));
        unitM = firstAxis(context, crs.get()).unit;
        const Axis angle = firstAxis(context, base.get());
        m_isLatitudeFirst = angle.direction == "north";
        m_angle = angle.unit;
        const ProjObject meridian(proj_get_prime_meridian(context, base.get()));
        double unit = 0;
        proj_prime_meridian_get_parameters(context, meridian.get(), &m_meridian, &unit, nullptr);
        m_meridian *= unit;
    }

    /// How far a position of the service lies from PROJ's, metres. Which axis is the first, a polar
    /// system does not tell; the published examples do.
    double distanceM(double latitudeDeg, double longitudeDeg, const CoordTriple& grid) const
    {
        const double latitude = latitudeDeg * kDegree / m_angle;
        const double longitude =
            std::remainder(longitudeDeg * kDegree - m_meridian, 2 * std::numbers::pi) / m_angle;
        const PJ_COORD place =
            proj_trans(m_way.get(), PJ_FWD,
                       m_isLatitudeFirst ? proj_coord(latitude, longitude, 0, HUGE_VAL)
                                         : proj_coord(longitude, latitude, 0, HUGE_VAL));
        return unitM * std::min(std::hypot(place.xy.x - grid.first, place.xy.y - grid.second),
                                std::hypot(place.xy.x - grid.second, place.xy.y - grid.first));
    }

    double unitM = 0;

private:
    using ProjObject = lum::ProjObject;
    struct Axis
    {
        std::string direction;
        double unit = 0;
    };

    static Axis firstAxis(PJ_CONTEXT* context, const PJ* crs)
    {
        const ProjObject system(proj_crs_get_coordinate_system(context, crs));
        const char* direction = nullptr;
        Axis axis;
        proj_cs_get_axis_info(context, system.get(), 0, nullptr, nullptr, &direction, &axis.unit,
                              nullptr, nullptr, nullptr);
        axis.direction = direction;
        return axis;
    }

    ProjObject m_way;
    bool m_isLatitudeFirst = false;
    double m_angle = 0; ///< radians
    double m_meridian = 0;
};

/// The largest distance from PROJ's position, and from where the way back starts, metres.
struct Deviation
{
    double there = 0;
    double back = 0;
};

Deviation deviationOver(const PROJ_CRS_INFO& area, CoordService& service, const Reference& proj)
{
    Deviation worst;
    const double widthDeg = std::remainder(area.east_lon_degree - area.west_lon_degree, 360);
    for (int i = 0; i < 9; ++i) {
        const double share = i % 3 * 0.5;
        const double latitude =
            area.south_lat_degree + (area.north_lat_degree - area.south_lat_degree) * share;
        if (std::abs(latitude) > 89.9) // any longitude will do there
            continue;
        const double width = widthDeg < 0 ? widthDeg + 360 : widthDeg;
        const double longitude = area.west_lon_degree + width * (i / 3) * 0.5;
        const CoordTriple grid = service.toGrid(latitude, longitude);
        EXPECT_EQ(service.code, 0) << service.message();
        const CoordTriple back = service.toGeodetic(grid);
        const double east =
            std::remainder(back.second - longitude, 360) * std::cos(latitude * kDegree);
        constexpr double kDegreeM = 111200;
        worst.there = std::max(worst.there, proj.distanceM(latitude, longitude, grid));
        worst.back = std::max(worst.back, std::hypot(back.first - latitude, east) * kDegreeM);
    }
    return worst;
}

} // namespace

TEST(EpsgRegister, EverySystemAgreesWithProjOrIsRefusedWithItsReason)
{
    const lum::ProjContext context = lum::makeProjContext();
    const lum::ProjOwner<PROJ_CRS_LIST_PARAMETERS> wanted(proj_get_crs_list_parameters_create());
    const PJ_TYPE type = PJ_TYPE_PROJECTED_CRS;
    wanted->types = &type;
    wanted->typesCount = 1;
    int count = 0;
    const lum::ProjOwner<PROJ_CRS_INFO*> list(
        proj_get_crs_info_list_from_database(context.get(), "EPSG", wanted.get(), &count));
    std::set<std::string> refused;
    for (int i = 0; i < count; ++i) {
        const PROJ_CRS_INFO& info = *list.get()[i];
        SCOPED_TRACE(std::string(info.code) + ' ' + info.name);
        basalt::Dictionary system = dictionaryOf("unit_m=0.25"); // of the system before
        const std::string reason = fillProjectionFromEpsg(info.code, system);
        if (!reason.empty()) {
            EXPECT_NE(reason.find(info.projection_method_name), std::string::npos) << reason;
            refused.insert(reason);
            continue;
        }
        CoordService service(system);
        ASSERT_EQ(service.initCode, 0) << service.service.message(service.initCode);
        const Reference proj(context.get(), info.code);
        EXPECT_NEAR(lum::lengthUnitOf(system).metres, proj.unitM, 1e-12 * proj.unitM);
        const Deviation worst = deviationOver(info, service, proj);
        EXPECT_LT(worst.back, kToleranceM);
        // PROJ has no answer for the west-orientated systems of this method.
        if (std::string(info.projection_method_name).find("West Orientated") == std::string::npos) {
            EXPECT_LT(worst.there, kToleranceM);
        }
        // A project without the key of the unit; none of an earlier version is in this one.
        system.remove(lum::kLengthUnitKey);
        if (std::abs(proj.unitM - 1) > 1e-4 || proj.unitM == 1) {
            EXPECT_NEAR(lum::lengthUnitOf(system).metres, proj.unitM, 1e-12 * proj.unitM);
        }
    }
    EXPECT_GT(count, 5000);
    EXPECT_LE(refused.size(), 50U);
}
