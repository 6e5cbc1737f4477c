#include "lum_sdk/coords/CoordResult.h"
#include "tests/lum_sdk/CoordFixture.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <numbers>

using lum::CoordResult;

namespace {

basalt::Dictionary gaussKruger()
{
    return dictionaryOf({{"ellipsoid_a", 6378137},
                         {"ellipsoid_f", 298.257222101},
                         {"project_type", 1},
                         {"org_lon", 117},
                         {"factor", 1},
                         {"false_east", 500000}});
}

basalt::Dictionary with(basalt::Dictionary system,
                        std::initializer_list<std::pair<const char*, double>> values)
{
    dictionary_copy(dictionaryOf(values), system);
    return system;
}

/// A grid of undulations in the GTX format, 10 + (latitude - 38) + 2 (longitude - 116) metres over
/// 38..42 degrees north and 116..120 degrees east.
class GeoidFile
{
public:
    GeoidFile()
    {
        const char* folder = std::getenv("TMPDIR");
        m_path = std::string(folder != nullptr ? folder : "/tmp") + "/geoid \"38\" 网格.gtx";
        std::ofstream file(m_path, std::ios::binary);
        for (const double number : {38.0, 116.0, 1.0, 1.0})
            write(file, std::bit_cast<std::uint64_t>(number), 8);
        write(file, 5, 4);
        write(file, 5, 4);
        for (int row = 0; row < 5; ++row) {
            for (int column = 0; column < 5; ++column)
                write(file, std::bit_cast<std::uint32_t>(float(10 + row + 2 * column)), 4);
        }
    }
    ~GeoidFile() { std::filesystem::remove(m_path); }
    GeoidFile(const GeoidFile&) = delete;
    GeoidFile& operator=(const GeoidFile&) = delete;

    [[nodiscard]] const std::string& path() const { return m_path; }

private:
    static void write(std::ofstream& file, std::uint64_t bits, int bytes)
    {
        for (int i = bytes - 1; i >= 0; --i)
            file.put(static_cast<char>(bits >> (8 * i) & 0xFF));
    }

    std::string m_path;
};

void expectBack(CoordService& service, double latitude, double longitude, double height)
{
    const CoordTriple back = service.toGeodetic(service.toGrid(latitude, longitude, height));
    ASSERT_EQ(service.code, 0) << service.message();
    EXPECT_NEAR(back.first, latitude, 1e-9);
    EXPECT_NEAR(back.second, longitude, 1e-9);
    EXPECT_NEAR(back.third, height, 1e-4);
}

} // namespace

/// A right angle about a point on the grid, doubled: computed by hand.
TEST(CoordCorrection, PlaneShiftTurnsAzimuthsClockwiseAboutItsOrigin)
{
    const CoordTriple plain = CoordService(gaussKruger()).toGrid(40, 118, 30);
    CoordService turned(with(gaussKruger(), {{"_4valid", 1},
                                             {"_4dx", 10},
                                             {"_4dy", 20},
                                             {"_4r", 90},
                                             {"_4s", 2},
                                             {"_4x0", 4400000},
                                             {"_4y0", 500000}}));
    const CoordTriple grid = turned.toGrid(40, 118, 30);
    EXPECT_NEAR(grid.first, 4400010 - 2 * (plain.second - 500000), 1e-6);
    EXPECT_NEAR(grid.second, 500020 + 2 * (plain.first - 4400000), 1e-6);
    EXPECT_NEAR(grid.third, 30, 1e-9);
    expectBack(turned, 40, 118, 30);
}

TEST(CoordCorrection, ConstantsAreNorthEastAndUpAfterTheShift)
{
    const auto shift = with(gaussKruger(), {{"_4valid", 1}, {"_4r", 90}});
    const CoordTriple before = CoordService(shift).toGrid(40, 118, 30);
    CoordService service(with(
        shift, {{"correct_valid", 2}, {"correct_dx", 1}, {"correct_dy", -2}, {"correct_dh", 3}}));
    const CoordTriple after = service.toGrid(40, 118, 30);
    EXPECT_NEAR(after.first - before.first, 1, 1e-8);
    EXPECT_NEAR(after.second - before.second, -2, 1e-8);
    EXPECT_NEAR(after.third - before.third, 3, 1e-8);
    expectBack(service, 40, 118, 30);
}

TEST(CoordCorrection, HeightFollowsPolynomialAndInclinedPlane)
{
    const CoordTriple plain = CoordService(gaussKruger()).toGrid(40, 117.5, 30);
    const double dx = plain.first - 4400000;
    const double dy = plain.second - 500000;
    CoordService service(with(gaussKruger(), {{"fit_valid", 1},
                                              {"fit_a0", 1},
                                              {"fit_a1", 2e-3},
                                              {"fit_a2", -3e-3},
                                              {"fit_a3", 4e-8},
                                              {"fit_a4", 5e-8},
                                              {"fit_a5", -6e-8},
                                              {"fit_x0", 4400000},
                                              {"fit_y0", 500000},
                                              {"ver_valid", 1},
                                              {"ver_h", 0.5},
                                              {"ver_x_slope", 10},
                                              {"ver_y_slope", -20},
                                              {"ver_x0", 4400000},
                                              {"ver_y0", 500000}}));
    const double expected = 30 + 1 + 2e-3 * dx - 3e-3 * dy + 4e-8 * dx * dx + 5e-8 * dy * dy -
                            6e-8 * dx * dy + 0.5 + 1e-5 * dx - 2e-5 * dy;
    EXPECT_NEAR(service.toGrid(40, 117.5, 30).third, expected, 1e-8);
    EXPECT_NEAR(service.toGrid(40, 117.5, 30).first, plain.first, 1e-9);
    expectBack(service, 40, 117.5, 30);
}

TEST(CoordCorrection, GroupsThatAreOffAreNotRead)
{
    const CoordTriple plain = CoordService(gaussKruger()).toGrid(40, 118, 30);
    const CoordTriple off = CoordService(with(gaussKruger(), {{"_7dx", 100},
                                                              {"_4dx", 100},
                                                              {"correct_dx", 100},
                                                              {"fit_a0", 100},
                                                              {"ver_h", 100}}))
                                .toGrid(40, 118, 30);
    EXPECT_EQ(off.first, plain.first);
    EXPECT_EQ(off.third, plain.third);
}

TEST(CoordGeoid, TakesTheUndulationOffTheWgs84Height)
{
    const GeoidFile file;
    auto system = with(gaussKruger(), {{"geoid_valid", 1}});
    dic_set_value(system, "geoid_file", file.path());
    CoordService service(system);
    ASSERT_EQ(service.initCode, 0) << service.service.message(service.initCode);
    EXPECT_NEAR(service.toGrid(39.5, 117.25, 100).third, 100 - (10 + 1.5 + 2.5), 1e-4);
    expectBack(service, 39.5, 117.25, 100);

    // a datum shift moves position and ellipsoid, never the height above the sea
    CoordService shifted(with(system, {{"_7type", 1}, {"_7dx", 300}, {"_7dz", -400}, {"_7rz", 9}}));
    EXPECT_NEAR(shifted.toGrid(39.5, 117.25, 100).third, 100 - 14, 1e-4);
    expectBack(shifted, 39.5, 117.25, 100);

    service.toGrid(10, 117, 100);
    EXPECT_EQ(service.code, static_cast<int>(CoordResult::OutsideGeoid));
}

TEST(CoordKinds, ReachEachOther)
{
    CoordService service(gaussKruger());
    // a point on the equator: the axis is its distance from the centre
    const CoordTriple centre =
        service.run(CoordKind::Geodetic, CoordKind::Geocentric, {0, 90, 1000});
    EXPECT_NEAR(centre.first, 0, 1e-6);
    EXPECT_NEAR(centre.second, 6379137, 1e-6);
    EXPECT_NEAR(centre.third, 0, 1e-6);

    const CoordTriple grid = service.toGrid(40, 118, 50);
    const CoordTriple there = service.run(CoordKind::Plane, CoordKind::Geocentric, grid);
    const CoordTriple again = service.run(CoordKind::Geocentric, CoordKind::PlaneInput, there);
    EXPECT_NEAR(again.first, grid.first, 1e-4);
    EXPECT_NEAR(again.second, grid.second, 1e-4);
    EXPECT_NEAR(again.third, 50, 1e-4);

    const CoordTriple packed =
        service.run(CoordKind::Plane, CoordKind::Geodetic, service.toGrid(-40.5, 117.25), 2);
    EXPECT_NEAR(packed.first, -40.3, 1e-9);
    EXPECT_NEAR(packed.second, 117.15, 1e-9);
    const CoordTriple radians =
        service.run(CoordKind::Plane, CoordKind::Geodetic, service.toGrid(45, 117), 3);
    EXPECT_NEAR(radians.first, std::numbers::pi / 4, 1e-12);
}

TEST(CoordDirections, GoThroughFirstAndSecondDictionary)
{
    const auto other = with(gaussKruger(), {{"false_east", 0}});
    CoordWjl service;
    ASSERT_EQ(service.initialise(gaussKruger(), other), 0);
    EXPECT_EQ(service.parameters().number("false_east", -1), 0);
    for (const int direction : {1, 2}) {
        CoordTriple out;
        ASSERT_EQ(
            service.transform(direction, 1, 2, 4, 40, 117, 0, &out.first, &out.second, &out.third),
            0);
        EXPECT_NEAR(out.second, direction == 1 ? 500000 : 0, 1e-6);
    }
    const auto broken = with(gaussKruger(), {{"ellipsoid_a", -1}});
    EXPECT_NE(service.initialise(broken, other), 0);
    EXPECT_FALSE(service.isValid(1));
    EXPECT_TRUE(service.isValid(2));
}

TEST(CoordBatch, FailsOnlyWhereAPointFails)
{
    CoordService one(gaussKruger());
    std::vector<CoordTriple> in;
    for (int i = 0; i < 1000; ++i)
        in.push_back({30 + i * 0.01, 115 + i * 0.004, double(i)});
    in[255].first = 91;
    in[256].second = std::nan("");
    std::vector<CoordTriple> out(in.size(), CoordTriple{-7, -7, -7});
    std::vector<std::int32_t> codes(in.size(), -1);
    EXPECT_EQ(one.service.transformMany(2, 1, 2, 4, in, out, codes), 2U);
    for (std::size_t i = 0; i < in.size(); ++i) {
        const bool isBad = i == 255 || i == 256;
        const CoordTriple expected = one.toGrid(in[i].first, in[i].second, in[i].third);
        EXPECT_EQ(codes[i], isBad ? static_cast<int>(CoordResult::NotACoordinate) : 0);
        EXPECT_EQ(out[i].first, isBad ? -7 : expected.first);
        EXPECT_EQ(out[i].third, isBad ? -7 : expected.third);
    }
}

TEST(CoordCalls, RefuseUnknownCodesAndLeaveTheOutputsAlone)
{
    CoordWjl service;
    CoordTriple out{1, 2, 3};
    const auto call = [&](int direction, int in, int to, int format) {
        return static_cast<CoordResult>(service.transform(direction, in, to, format, 40, 117, 0,
                                                          &out.first, &out.second, &out.third));
    };
    EXPECT_EQ(call(2, 1, 2, 4), CoordResult::NotInitialised);
    service.initialise(gaussKruger(), gaussKruger());
    EXPECT_EQ(call(0, 1, 2, 4), CoordResult::UnknownDirection);
    EXPECT_EQ(call(2, 0, 2, 4), CoordResult::UnknownInputKind);
    EXPECT_EQ(call(2, 1, 5, 4), CoordResult::UnknownOutputKind);
    EXPECT_EQ(call(2, 1, 2, 5), CoordResult::UnknownAngleFormat);
    EXPECT_EQ(out.second, 2);
    EXPECT_STREQ(service.message(0), "");
    EXPECT_STREQ(service.message(9999), "The result code 9999 is unknown.");
}

struct BadParameter
{
    const char* name;
    const char* key;
    const char* value;
    CoordResult code;
    const char* named; ///< must stand in the message
};

class BadParameters : public testing::TestWithParam<BadParameter>
{
};

TEST_P(BadParameters, AreNamed)
{
    const BadParameter& bad = GetParam();
    auto system = gaussKruger();
    dic_set_value(system, "geoid_valid", std::string_view(bad.key) == "geoid_file" ? 1 : 0);
    if (std::string_view(bad.key) == "_7rx")
        dic_set_value(system, "_7type", 3);
    if (std::string_view(bad.key) == "_4s")
        dic_set_value(system, "_4valid", 1);
    system.set(bad.key, bad.value);
    CoordService service(system);
    EXPECT_EQ(service.initCode, static_cast<int>(bad.code));
    service.toGrid(40, 117);
    EXPECT_EQ(service.code, service.initCode);
    EXPECT_NE(service.message().find(bad.named), std::string::npos) << service.message();
    EXPECT_EQ(service.message().find('%'), std::string::npos) << service.message();
}

INSTANTIATE_TEST_SUITE_P(
    Keys, BadParameters,
    testing::Values(
        BadParameter{"NoAxis", "ellipsoid_a", "", CoordResult::EllipsoidAxis, "ellipsoid_a"},
        BadParameter{"FlatteningNotInverse", "ellipsoid_f", "0.00335",
                     CoordResult::EllipsoidFlattening, "ellipsoid_f"},
        BadParameter{"NoProjection", "project_type", "0", CoordResult::NoProjection,
                     "project_type"},
        BadParameter{"UnknownProjection", "project_type", "99", CoordResult::UnknownProjection,
                     "99"},
        BadParameter{"NoParallels", "project_type", "8", CoordResult::Parallels, "parallel_1_lat"},
        BadParameter{"ConeOnTheEquator", "project_type", "3", CoordResult::OriginLatitude,
                     "org_lat"},
        BadParameter{"NoAzimuth", "project_type", "5", CoordResult::Azimuth, "p_r"},
        BadParameter{"NoPole", "project_type", "7", CoordResult::OriginLatitude, "org_lat"},
        BadParameter{"OtherEllipsoidForKrovak", "project_type", "11", CoordResult::KrovakEllipsoid,
                     "Bessel"},
        BadParameter{"Latitude", "org_lat", "90.5", CoordResult::OriginLatitude, "org_lat"},
        BadParameter{"Longitude", "org_lon", "500", CoordResult::OriginLongitude, "org_lon"},
        BadParameter{"NotANumber", "false_east", "nan", CoordResult::NotANumber, "false_east"},
        BadParameter{"Factor", "factor", "-1", CoordResult::Factor, "factor"},
        BadParameter{"ShiftKind", "_7type", "4", CoordResult::UnknownDatumShift, "_7type"},
        BadParameter{"ShiftWithoutPivot", "_7rx", "1", CoordResult::DatumShiftPivot, "_7px"},
        BadParameter{"PlaneScale", "_4s", "-1", CoordResult::PlaneScale, "_4s"},
        BadParameter{"NoGeoid", "geoid_file", "", CoordResult::NoGeoidFile, "geoid_file"},
        BadParameter{"MissingGeoid", "geoid_file", "/no such/grid.gtx", CoordResult::GeoidFile,
                     "/no such/grid.gtx"},
        BadParameter{"OptionalGeoid", "geoid_file", "@missing.gtx", CoordResult::GeoidFile,
                     "@missing.gtx"}),
    [](const auto& test) { return test.param.name; });

TEST(CoordPoints, OutOfReachGetACodeInBothDirections)
{
    CoordService service(gaussKruger());
    service.toGrid(0, 207);
    EXPECT_EQ(service.code, static_cast<int>(CoordResult::OutsideProjection));
    service.toGeodetic({1e30, 1e30, 0});
    EXPECT_EQ(service.code, static_cast<int>(CoordResult::OutsideProjection));
    service.toGrid(40, 117);
    EXPECT_EQ(service.code, 0) << "a fault must not stay";
}

TEST(CoordFactory, GivesTheServiceByItsName)
{
    registerCoordComponents();
    registerCoordComponents();
    ICoordTransform* service = extensible_factory_get_ICoordTransform("coord_wjl", 0);
    ASSERT_NE(service, nullptr);
    EXPECT_FALSE(service->isValid(2));
    extensible_factory_release_ICoordTransform(service);
    EXPECT_EQ(extensible_factory_get_ICoordTransform("coord_abc", 0), nullptr);
}
