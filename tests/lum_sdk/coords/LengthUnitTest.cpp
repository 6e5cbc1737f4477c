#include "lum_sdk/coords/LengthUnit.h"

#include "tests/lum_sdk/coords/CoordFixture.h"

/// Parameters as older projects and users have them, without the key of the unit.
TEST(LengthUnit, FollowsFromTheScaleOfThePlane)
{
    for (const auto& [parameters, name] :
         {std::pair("", "metre"), std::pair("project_type=1,factor=0.9996", "metre"),
          std::pair("project_type=1,factor=3.28083333333333", "US survey foot"),
          std::pair("project_type=1,factor=3.2804", "US survey foot"), // typed
          std::pair("project_type=1,factor=3.2808398950131235", "foot"),
          std::pair("project_type=1,factor=3.28084", "foot"),
          std::pair("project_type=1,factor=3.279521", "US survey foot"), // 0.9996
          // 0.9999 in international feet, 0.999966667 in US survey feet
          std::pair("project_type=1,factor=3.280511811023622", "foot"),
          std::pair("project_type=1,factor=3.2807239733158333", "US survey foot"),
          std::pair("project_type=9,factor=4.971014", "Clarke's link"),
          std::pair("project_type=9,factor=4.9710141367676295", "Clarke's link"),
          // the projection has a factor of its own, or another one counts
          std::pair("project_type=2,factor=3.2808398950131235", "metre"),
          std::pair("project_type=6,factor=3.2808398950131235,cutting_radius=200000", "metre"),
          std::pair("project_type=1,factor=1,_4valid=1,_4s=3.2808398950131235", "foot"),
          std::pair("project_type=1,factor=1,_4valid=0,_4s=3.2808398950131235", "metre"),
          // a key that the scale contradicts is left from another system
          std::pair("project_type=1,factor=1,unit_m=0.3048", "metre"),
          std::pair("project_type=1,factor=3.28,unit_m=0.3048", "foot"),
          std::pair("project_type=1,factor=3.28,unit_m=0.3047972654", "Clarke's foot"),
          std::pair("project_type=1,factor=4,unit_m=0.25", "0.25 m")})
        EXPECT_EQ(lum::lengthUnitOf(dictionaryOf(parameters)).name, name) << parameters;
}
