#include "lum_desktop_sdkx/frame/CoordTransformHelper.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"

#include <QPointF>

#include <gtest/gtest.h>

/// Whatever the axes of the system are, a place in the north-east is in the upper right.
TEST(CoordTransformHelper, KeepsNorthUpAndEastToTheRight)
{
    const CoordTransformHelper helper;
    for (const auto& [code, latitude, longitude] :
         {std::tuple("32734", -33.0, 20.0),  // north and east
          std::tuple("2049", -33.0, 20.0),   // south and west
          std::tuple("3145", 62.0, -7.0)}) { // north and west
        SCOPED_TRACE(code);
        basalt::Dictionary system;
        ASSERT_EQ(fillProjectionFromEpsg(code, system), "");
        get_project_coord_transform().initialise(system, system);
        QPointF place;
        QPointF northEast;
        ASSERT_TRUE(helper.geodeticToMap(latitude, longitude, place));
        ASSERT_TRUE(helper.geodeticToMap(latitude + 0.01, longitude + 0.01, northEast));
        EXPECT_GT(northEast.x(), place.x());
        EXPECT_GT(northEast.y(), place.y());

        double back[2] = {};
        ASSERT_TRUE(helper.mapToGeodetic(place, back[0], back[1]));
        EXPECT_NEAR(back[0], latitude, 1e-9);
        EXPECT_NEAR(back[1], longitude, 1e-9);
        double north = 0;
        double east = 0;
        helper.mapToProject(helper.projectToMap(1234.5, 678.9), north, east);
        EXPECT_EQ(north, 1234.5);
        EXPECT_EQ(east, 678.9);
    }
    get_project_coord_transform().initialise(basalt::Dictionary(), basalt::Dictionary());
    EXPECT_EQ(helper.projectToMap(1, 2), QPointF(2, 1));
}
