#include "basalt_utilities/KeyList.h"
#include "CsvFixture.h"
#include "exchange/CrewList.h"
#include "exchange/DesignKml.h"
#include "lum_sdk/coords/CoordWjl.h"
#include "tests/support/Literals.h"
#include "tests/support/SmallFiles.h"

#include <QDir>

#include <gdal.h>
#include <ogr_api.h>

namespace {

struct Feature
{
    std::string name;
    std::string description;
    std::vector<CoordTriple> positions; ///< latitude, longitude, height
};

class Kml : public CsvFixture
{
protected:
    Kml()
    {
        GDALAllRegister();
        basalt::Dictionary system; // with a datum shift, so that height and position depend
        csa_to_dictionary(system,
                          "ellipsoid_a=6378245,ellipsoid_f=298.3,project_type=1,org_lon=117,"
                          "false_east=500000,factor=1,_7type=1,_7dx=15.8,_7dy=-154.4,"
                          "_7dz=-82.3");
        EXPECT_EQ(transform.initialise(system, system), 0);
    }

    Outcome writeDesign(const QStringList& lines, bool onlyUnsurveyed = false)
    {
        return writeDesignKml(path(), {design, lines, onlyUnsurveyed}, transform, progress);
    }

    [[nodiscard]] std::vector<Feature> read(int layerIndex) const
    {
        std::vector<Feature> features;
        const char* const drivers[] = {"KML", nullptr}; // the name ends in .csv
        const GDALDatasetH dataset =
            GDALOpenEx(path().toUtf8().constData(), GDAL_OF_VECTOR, drivers, nullptr, nullptr);
        const OGRLayerH layer = GDALDatasetGetLayer(dataset, layerIndex);
        while (const OGRFeatureH feature = OGR_L_GetNextFeature(layer)) {
            Feature& read = features.emplace_back();
            read.name = OGR_F_GetFieldAsString(feature, 0);
            read.description = OGR_F_GetFieldAsString(feature, 1);
            const OGRGeometryH geometry = OGR_F_GetGeometryRef(feature);
            for (int i = 0; i < OGR_G_GetPointCount(geometry); ++i)
                read.positions.push_back(
                    {OGR_G_GetY(geometry, i), OGR_G_GetX(geometry, i), OGR_G_GetZ(geometry, i)});
            OGR_F_Destroy(feature);
        }
        GDALClose(dataset);
        return features;
    }

    /// Whether `position` is what the coordinate service makes of these plane coordinates.
    template <class Point>
    void expectAt(const Point& point, const CoordTriple& position)
    {
        CoordTriple right;
        ASSERT_EQ(transform.transform(2, 4, 1, 1, point.north, point.east, point.elevation,
                                      &right.first, &right.second, &right.third),
                  0);
        EXPECT_NEAR(position.first, right.first, 1e-8);
        EXPECT_NEAR(position.second, right.second, 1e-8);
        EXPECT_NEAR(position.third, right.third, 1e-4);
    }

    CoordWjl transform;
    DesignPoints design;
};

} // namespace

// GDAL tells of a full disk late or never; it is full at one place after the other.
TEST_F(Kml, AFullDiskLeavesTheFileAsItWas)
{
    for (int i = 0; i < 5000; ++i)
        design.set({"1", std::to_string(i), 4400000.0 + i, 500000, 1, 0, 0, 0});
    const QString name = file("before");
    for (const rlim_t kilobytes : {0U, 1U, 300U, 900U}) {
        const SmallFiles limit(kilobytes * 1024);
        const Outcome writing = writeDesign({"1"_q});
        EXPECT_FALSE(writing.isDone()) << kilobytes;
        EXPECT_TRUE(writing.text().contains(path())) << qPrintable(writing.text());
    }
    EXPECT_EQ(TestFolder::read(name), "before");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    EXPECT_TRUE(writeDesign({"1"_q}).isDone());
    EXPECT_EQ(read(0).size(), 5000U);
}

TEST_F(Kml, ACrewListTellsWhatIsWrongAtEachPointAndDrawsNoLine)
{
    CrewList list;
    design.set({"测线", "1", 4400000, 500000, 1, 0, 1, 1});
    design.set({"测线", "900", 4409000, 500000, 1, 0, 0, 0});
    list.add(*design.find("测线", "900"), {});
    list.add(*design.find("测线", "1"), "5.213 m <off>");
    list.add(*design.find("测线", "900"), "no result");
    list.add(*design.find("测线", "1"), "");
    list.add(*design.find("测线", "1"), "too old");
    ASSERT_TRUE(writeCrewKml(path(), list, transform, progress).isDone());
    const std::vector<Feature> points = read(0);
    ASSERT_EQ(points.size(), 2U);
    expectAt(*design.find("测线", "1"), points[0].positions[0]);
    EXPECT_TRUE(QString::fromStdString(points[0].description)
                    .endsWith(" Problem: 5.213 m <off> Problem: too old"_q))
        << points[0].description;
    EXPECT_EQ(points[1].name, "900");
    EXPECT_TRUE(QString::fromStdString(points[1].description).endsWith("m Problem: no result"_q));
    EXPECT_FALSE(TestFolder::read(path()).contains("LineString"));

    const QByteArray before = TestFolder::read(path());
    list.addUnknown("测线", "7");
    transform.initialise(basalt::Dictionary(), basalt::Dictionary());
    EXPECT_FALSE(writeCrewKml(path(), list, transform, progress).isDone());
    EXPECT_EQ(TestFolder::read(path()), before);
}
