#include "lum_sdk/coords/DatumShift.h"

#include "lum_sdk/coords/ProjHandles.h"
#include "tests/lum_sdk/CoordFixture.h"

#include <gtest/gtest.h>

using lum::DatumShift;
using lum::DatumShiftKind;

namespace {

PJ_COORD shifted(const DatumShift& shift, const PJ_COORD& point)
{
    const lum::ProjContext context = lum::makeProjContext();
    const lum::ProjObject step(proj_create(context.get(), shift.projStep().c_str()));
    return proj_trans(step.get(), PJ_FWD, point);
}

} // namespace

struct ShiftExample
{
    const char* name;
    DatumShift shift;
    PJ_COORD from, to;
    double toleranceM;
};

class PublishedShift : public testing::TestWithParam<ShiftExample>
{
};

TEST_P(PublishedShift, AgreesAndComesBack)
{
    const ShiftExample& example = GetParam();
    const PJ_COORD to = shifted(example.shift, example.from);
    EXPECT_NEAR(to.xyz.x, example.to.xyz.x, example.toleranceM);
    EXPECT_NEAR(to.xyz.y, example.to.xyz.y, example.toleranceM);
    EXPECT_NEAR(to.xyz.z, example.to.xyz.z, example.toleranceM);

    const PJ_COORD back = shifted(example.shift.inverse(), to);
    EXPECT_NEAR(back.xyz.x, example.from.xyz.x, 0.01); // the matrix is linear in the angles
    EXPECT_NEAR(back.xyz.y, example.from.xyz.y, 0.01);
    EXPECT_NEAR(back.xyz.z, example.from.xyz.z, 0.01);
}

// IOGP publication 373-7-2: WGS 72 to WGS 84 in both conventions, and La Canoa to REGVEN.
INSTANTIATE_TEST_SUITE_P(
    GuidanceNote, PublishedShift,
    testing::Values(ShiftExample{"PositionVector",
                                 DatumShift(DatumShiftKind::PositionVector, {0, 0, 4.5},
                                            {0, 0, 0.554}, 0.219),
                                 {{3657660.66, 255768.55, 5201382.11, 0}},
                                 {{3657660.78, 255778.43, 5201387.75, 0}},
                                 0.01},
                    ShiftExample{"CoordinateFrame",
                                 DatumShift(DatumShiftKind::CoordinateFrame, {0, 0, 4.5},
                                            {0, 0, -0.554}, 0.219),
                                 {{3657660.66, 255768.55, 5201382.11, 0}},
                                 {{3657660.78, 255778.43, 5201387.75, 0}},
                                 0.01},
                    ShiftExample{"MolodenskyBadekas",
                                 DatumShift(DatumShiftKind::MolodenskyBadekas,
                                            {-270.933, 115.599, -360.226}, {-5.266, -1.238, 2.381},
                                            -5.109, {2464351.59, -5783466.61, 974809.81}),
                                 {{2550408.96, -5749912.26, 1054891.11, 0}},
                                 {{2550138.45, -5749799.87, 1054530.82, 0}},
                                 0.01}),
    [](const auto& test) { return test.param.name; });

/// The same example through the whole chain: what the shifted point projects to is what its
/// published geodetic position projects to.
TEST(DatumShiftInTheChain, TurnsTheWayTheKindSays)
{
    basalt::Dictionary plain = dictionaryOf({{"project_type", 4},
                                             {"ellipsoid_a", 6378137},
                                             {"ellipsoid_f", 298.257223563},
                                             {"factor", 1}});
    const CoordTriple expected =
        CoordService(plain).toGrid(dms(55, 0, 0.090), dms(4, 0, 0.554), 3.22);
    for (const int kind : {1, 2}) {
        basalt::Dictionary system(plain);
        dictionary_copy(dictionaryOf({{"_7dz", 4.5}, {"_7ppm", 0.219}}), system);
        dic_set_value(system, "_7type", kind);
        dic_set_value(system, "_7rz", kind == 1 ? 0.554 : -0.554);
        const CoordTriple grid = CoordService(system).run(CoordKind::Geocentric, CoordKind::Plane,
                                                          {3657660.66, 255768.55, 5201382.11});
        EXPECT_NEAR(grid.first, expected.first, 0.03); // 0.0005 seconds, stretched by Mercator
        EXPECT_NEAR(grid.second, expected.second, 0.03);
        EXPECT_NEAR(grid.third, expected.third, 0.01);
    }
}

TEST(DatumShiftKeys, ReadBackWhatWasWritten)
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
