#include "lum_sdk/coords/DatumShift.h"

#include "lum_sdk/coords/ProjHandles.h"
#include "tests/lum_sdk/coords/CoordFixture.h"

using lum::DatumShift;
using lum::DatumShiftKind;

namespace {

CoordTriple shifted(const DatumShift& shift, const CoordTriple& point)
{
    const lum::ProjContext context = lum::makeProjContext();
    const lum::ProjObject step(proj_create(context.get(), shift.projStep().c_str()));
    const PJ_XYZ to =
        proj_trans(step.get(), PJ_FWD, {{point.first, point.second, point.third, 0}}).xyz;
    return {to.x, to.y, to.z};
}

} // namespace

// IOGP publication 373-7-2: WGS 72 to WGS 84 in both conventions, and La Canoa to REGVEN.
TEST(DatumShift, AgreesWithThePublishedExampleAndComesBack)
{
    const auto expectShift = [](const DatumShift& shift, const CoordTriple& from,
                                const CoordTriple& to) {
        expectNear(shifted(shift, from), to, 0.01);
        expectNear(shifted(shift.inverse(), shifted(shift, from)), from, 0.01);
    };
    const CoordTriple wgs72{3657660.66, 255768.55, 5201382.11};
    const CoordTriple wgs84{3657660.78, 255778.43, 5201387.75};
    expectShift({DatumShiftKind::PositionVector, {0, 0, 4.5}, {0, 0, 0.554}, 0.219}, wgs72, wgs84);
    expectShift({DatumShiftKind::CoordinateFrame, {0, 0, 4.5}, {0, 0, -0.554}, 0.219}, wgs72,
                wgs84);
    expectShift({DatumShiftKind::MolodenskyBadekas,
                 {-270.933, 115.599, -360.226},
                 {-5.266, -1.238, 2.381},
                 -5.109,
                 {2464351.59, -5783466.61, 974809.81}},
                {2550408.96, -5749912.26, 1054891.11}, {2550138.45, -5749799.87, 1054530.82});
}

/// The same example through the whole chain: what the shifted point projects to is what its
/// published geodetic position projects to.
TEST(DatumShift, TurnsTheWayTheKindSays)
{
    const char* const plain =
        "project_type=4,ellipsoid_a=6378137,ellipsoid_f=298.257223563,factor=1";
    const CoordTriple expected =
        CoordService(dictionaryOf(plain)).toGrid(dms(55, 0, 0.090), dms(4, 0, 0.554), 3.22);
    for (const char* shift : {"_7dz=4.5,_7ppm=0.219,_7type=1,_7rz=0.554",
                              "_7dz=4.5,_7ppm=0.219,_7type=2,_7rz=-0.554"}) {
        const CoordTriple grid =
            CoordService(dictionaryOf(plain, shift))
                .run(CoordKind::Geocentric, CoordKind::Plane, {3657660.66, 255768.55, 5201382.11});
        expectNear(grid, expected, 0.03); // 0.0005 seconds, stretched by Mercator
        EXPECT_NEAR(grid.third, expected.third, 0.01);
    }
}

TEST(DatumShift, ReadsBackTheKeysItWrote)
{
    const DatumShift shift(DatumShiftKind::PositionVector, {1, -2, 3}, {0.1, -0.2, 0.3}, 4);
    basalt::Dictionary keys;
    shift.toDictionary(keys);
    lum::CoordFault fault;
    EXPECT_EQ(DatumShift::fromDictionary(keys, fault).projStep(), shift.projStep());

    DatumShift().toDictionary(keys);
    EXPECT_TRUE(DatumShift::fromDictionary(keys, fault).isNone());
    EXPECT_EQ(keys.text("_7type"), "0");
    EXPECT_FALSE(fault);
}
