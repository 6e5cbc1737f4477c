#include "samples/DemoImage.h"

#include "lum_sdk/raster/RasterSource.h"
#include "samples/Terrain.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

#include <map>

namespace {

/// The colour of the image at a place of the survey.
class Image
{
public:
    explicit Image(lum::RasterSource& source) : m_source(source), m_info(source.info()) {}

    QColor at(const demo::LocalPlace& place)
    {
        const demo::PlanePlace plane = demo::toPlane(place);
        const auto& to = m_info.toCoordinates;
        const QPoint pixel(static_cast<int>((plane.east - to[0]) / to[1]),
                           static_cast<int>((plane.north - to[3]) / to[5]));
        const QSize block = m_info.levels[0].block;
        const std::pair key(pixel.x() / block.width(), pixel.y() / block.height());
        QString fault;
        if (m_blocks.count(key) == 0)
            m_blocks[key] = m_source.readBlock(0, key.first, key.second, fault);
        EXPECT_EQ(fault, QString());
        return m_blocks[key].pixelColor(pixel.x() % block.width(), pixel.y() % block.height());
    }

private:
    lum::RasterSource& m_source;
    const lum::RasterInfo& m_info;
    std::map<std::pair<int, int>, QImage> m_blocks;
};

} // namespace

TEST(DemoImage, ShowsWhatStandsInTheWayOfTheStakes)
{
    const TestFolder folder;
    const QString path = folder.path("图像.tif");
    ASSERT_EQ(demo::writeDemoImage(path), QString());
    QString fault;
    const auto source = lum::RasterSource::open(path, fault);
    ASSERT_NE(source, nullptr) << fault.toStdString();
    EXPECT_EQ(source->info().systemName, QStringLiteral("WGS 84 / UTM zone 50N"));
    EXPECT_FALSE(source->info().lacksOverviews());
    EXPECT_GE(source->info().levels.size(), 4U);

    Image image(*source);
    int rivers = 0;
    int houses = 0;
    for (const DesignPoint& point : demo::designGrid()) {
        const demo::LocalPlace place = demo::toGrid({point.north, point.east});
        // Not at an edge, where the colours of a compressed image run into each other.
        const bool isInside = demo::obstacleAt({place.x + 6, place.y + 6}) ==
                                  demo::obstacleAt({place.x - 6, place.y - 6}) &&
                              demo::obstacleAt({place.x + 6, place.y - 6}) ==
                                  demo::obstacleAt({place.x - 6, place.y + 6});
        const demo::Obstacle obstacle = demo::obstacleAt(place);
        if (obstacle == demo::Obstacle::None || !isInside)
            continue;
        const QColor color = image.at(place);
        const bool isRiver = obstacle == demo::Obstacle::River;
        SCOPED_TRACE(point.pointNumber + ' ' + color.name().toStdString());
        (isRiver ? rivers : houses) += 1;
        EXPECT_EQ(color.blue() > color.red() + 10, isRiver); // except on a bridge
        EXPECT_EQ(color.red() > color.green() + 30, !isRiver);
    }
    EXPECT_GT(rivers, 20);
    EXPECT_GT(houses, 5);
}

TEST(DemoImage, TellsWhyItCannotBeWritten)
{
    const TestFolder folder;
    EXPECT_NE(demo::writeDemoImage(folder.path("no such folder/ground.tif")), QString());
}
