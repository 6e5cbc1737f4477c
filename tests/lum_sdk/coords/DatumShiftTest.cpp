#include "lum_sdk/coords/DatumShift.h"

#include "lum_sdk/coords/ProjHandles.h"
#include "tests/lum_sdk/coords/CoordFixture.h"

using lum::DatumShift;

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
    const CoordTriple wgs72{3657660.66, 255768.55, 5201382.11};
    const CoordTriple wgs84{3657660.78, 255778.43, 5201387.75};
    for (const auto& [keys, from, to] :
         {std::tuple("_7type=1,_7dz=4.5,_7rz=0.554,_7ppm=0.219", wgs72, wgs84),
          std::tuple("_7type=2,_7dz=4.5,_7rz=-0.554,_7ppm=0.219", wgs72, wgs84),
          std::tuple("_7type=3,_7dx=-270.933,_7dy=115.599,_7dz=-360.226,_7rx=-5.266,_7ry=-1.238,"
                     "_7rz=2.381,_7ppm=-5.109,_7px=2464351.59,_7py=-5783466.61,_7pz=974809.81",
                     CoordTriple{2550408.96, -5749912.26, 1054891.11},
                     CoordTriple{2550138.45, -5749799.87, 1054530.82})}) {
        lum::CoordFault fault;
        const DatumShift shift = DatumShift::fromDictionary(dictionaryOf(keys), fault);
        expectNear(shifted(shift, from), to, 0.01);
        expectNear(shifted(shift.inverse(), shifted(shift, from)), from, 0.01);
        basalt::Dictionary written;
        shift.toDictionary(written);
        EXPECT_EQ(DatumShift::fromDictionary(written, fault).projStep(), shift.projStep());
    }
}
