#include "lum_sdk/coords/CoordResult.h"
#include "tests/lum_sdk/coords/CoordFixture.h"
#include "tests/support/TestFolder.h"

#include <QDataStream>

#include <cmath>

using lum::CoordResult;

namespace {

/// A grid of undulations in the GTX format, 10 + (latitude - 38) + 2 (longitude - 116) metres over
/// 38..42 degrees north and 116..120 degrees east.
QByteArray geoidGrid()
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly); // big endian, as the format
    stream << 38.0 << 116.0 << 1.0 << 1.0 << qint32(5) << qint32(5);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 5; ++column)
            stream << float(10 + row + 2 * column);
    }
    return bytes;
}

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
    CoordService turned(
        gaussKruger("_4valid=1,_4dx=10,_4dy=20,_4r=90,_4s=2,_4x0=4400000,_4y0=500000"));
    expectNear(turned.toGrid(40, 118, 30),
               {4400010 - 2 * (plain.second - 500000), 500020 + 2 * (plain.first - 4400000), 30},
               1e-6);
    expectBack(turned, 40, 118, 30);
}

TEST(CoordCorrection, ConstantsAreNorthEastAndUpAfterTheShift)
{
    const CoordTriple before = CoordService(gaussKruger("_4valid=1,_4r=90")).toGrid(40, 118, 30);
    CoordService service(
        gaussKruger("_4valid=1,_4r=90,correct_valid=2,correct_dx=1,correct_dy=-2,correct_dh=3"));
    expectNear(service.toGrid(40, 118, 30), {before.first + 1, before.second - 2, before.third + 3},
               1e-8);
    expectBack(service, 40, 118, 30);
}

TEST(CoordCorrection, HeightFollowsPolynomialAndInclinedPlane)
{
    const CoordTriple plain = CoordService(gaussKruger()).toGrid(40, 117.5, 30);
    const double dx = plain.first - 4400000;
    const double dy = plain.second - 500000;
    CoordService service(gaussKruger(
        "fit_valid=1,fit_a0=1,fit_a1=2e-3,fit_a2=-3e-3,fit_a3=4e-8,fit_a4=5e-8,fit_a5=-6e-8,"
        "fit_x0=4400000,fit_y0=500000,ver_valid=1,ver_h=0.5,ver_x_slope=10,ver_y_slope=-20,"
        "ver_x0=4400000,ver_y0=500000"));
    const double height = 30 + 1 + 2e-3 * dx - 3e-3 * dy + 4e-8 * dx * dx + 5e-8 * dy * dy -
                          6e-8 * dx * dy + 0.5 + 1e-5 * dx - 2e-5 * dy;
    expectNear(service.toGrid(40, 117.5, 30), {plain.first, plain.second, height}, 1e-8);
    expectBack(service, 40, 117.5, 30);
}

TEST(CoordCorrection, GroupsThatAreOffAreNotRead)
{
    const auto off = gaussKruger("_7dx=100,_4dx=100,correct_dx=100,fit_a0=100,ver_h=100");
    expectNear(CoordService(off).toGrid(40, 118, 30),
               CoordService(gaussKruger()).toGrid(40, 118, 30), 0);
}

TEST(CoordGeoid, TakesTheUndulationOffTheWgs84Height)
{
    const TestFolder folder;
    auto system = gaussKruger("geoid_valid=1");
    const QString file = folder.write("geoid \"38\" 网格.gtx", geoidGrid());
    dic_set_value(system, "geoid_file", file.toStdString());
    CoordService service(system);
    ASSERT_EQ(service.initCode, 0) << service.service.message(service.initCode);
    EXPECT_NEAR(service.toGrid(39.5, 117.25, 100).third, 100 - (10 + 1.5 + 2.5), 1e-4);
    expectBack(service, 39.5, 117.25, 100);

    // a datum shift moves position and ellipsoid, never the height above the sea
    csa_to_dictionary(system, "_7type=1,_7dx=300,_7dz=-400,_7rz=9");
    CoordService shifted(system);
    EXPECT_NEAR(shifted.toGrid(39.5, 117.25, 100).third, 100 - 14, 1e-4);
    expectBack(shifted, 39.5, 117.25, 100);

    service.toGrid(10, 117, 100);
    EXPECT_EQ(service.code, static_cast<int>(CoordResult::OutsideGeoid));
}

TEST(CoordKinds, ReachEachOther)
{
    CoordService service(gaussKruger());
    // a point on the equator: the axis is its distance from the centre
    expectNear(service.run(CoordKind::Geodetic, CoordKind::Geocentric, {0, 90, 1000}),
               {0, 6379137, 0}, 1e-6);

    const CoordTriple grid = service.toGrid(40, 118, 50);
    const CoordTriple there = service.run(CoordKind::Plane, CoordKind::Geocentric, grid);
    expectNear(service.run(CoordKind::Geocentric, CoordKind::PlaneInput, there), grid, 1e-4);

    const CoordTriple packed =
        service.run(CoordKind::Plane, CoordKind::Geodetic, service.toGrid(-40.5, 117.25), 2);
    expectNear(packed, {-40.3, 117.15, 0}, 1e-9);
}

TEST(CoordDirections, GoThroughFirstAndSecondDictionary)
{
    const auto other = gaussKruger("false_east=0");
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
    EXPECT_NE(service.initialise(gaussKruger("ellipsoid_a=-1"), other), 0);
    EXPECT_TRUE(!service.isValid(1) && service.isValid(2));
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
        EXPECT_EQ(codes[i], isBad ? static_cast<int>(CoordResult::NotACoordinate) : 0);
        expectNear(out[i],
                   isBad ? CoordTriple{-7, -7, -7}
                         : one.toGrid(in[i].first, in[i].second, in[i].third),
                   0);
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
