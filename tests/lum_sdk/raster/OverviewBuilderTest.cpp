#include "lum_sdk/raster/OverviewBuilder.h"

#include "lum_sdk/raster/RasterSource.h"
#include "tests/support/GeoTiff.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>

#include <cpl_conv.h>
#include <gtest/gtest.h>

namespace {

const auto kToTheEnd = [](double) { return true; };

QStringList filesIn(const TestFolder& folder)
{
    return QDir(folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

TEST(OverviewBuilder, WritesEachLevelBesideTheFile)
{
    const TestFolder folder;
    const QString path = folder.path("测区 & river.tif");
    GeoTiff tiff{{1300, 900}, QColor(200, 100, 50)};
    tiff.maskedRows = 400;
    CPLSetConfigOption("GDAL_TIFF_INTERNAL_MASK", "YES");
    ASSERT_TRUE(tiff.write(path));
    CPLSetConfigOption("GDAL_TIFF_INTERNAL_MASK", nullptr);
    const QByteArray before = TestFolder::read(path);
    double last = 0;
    const auto result = lum::buildOverviews(path, [&](double share) {
        EXPECT_GE(share, last);
        last = share;
        return true;
    });
    EXPECT_TRUE(result.isBuilt) << result.fault.toStdString();
    EXPECT_EQ(last, 1);
    EXPECT_EQ(TestFolder::read(path), before);
    EXPECT_EQ(filesIn(folder), (QStringList{"测区 & river.tif"_q, "测区 & river.tif.ovr"_q}));

    QString fault;
    const auto source = lum::RasterSource::open(path, fault);
    ASSERT_NE(source, nullptr) << fault.toStdString();
    const auto& levels = source->info().levels;
    ASSERT_GE(levels.size(), 4U);
    EXPECT_TRUE(levels[3].isStored);
    EXPECT_EQ(levels[3].size, QSize(163, 113));
    const QImage block = source->readBlock(3, 0, 0, fault);
    EXPECT_EQ(block.pixel(100, 60), QColor(200, 100, 50).rgba());
    EXPECT_EQ(qAlpha(block.pixel(100, 40)), 0) << "no data";
}

TEST(OverviewBuilder, LeavesNothingBehindWithoutSuccess)
{
    const TestFolder folder;
    const QString path = folder.path("large.tif");
    GeoTiff tiff{{3000, 3000}};
    ASSERT_TRUE(tiff.write(path));
    const auto expectNothing = [&](const lum::OverviewResult& result, const char* part) {
        EXPECT_FALSE(result.isBuilt);
        EXPECT_TRUE(part == nullptr ? result.fault.isEmpty()
                                    : result.fault.contains(QString::fromUtf8(part)))
            << result.fault.toStdString();
        EXPECT_EQ(filesIn(folder), QStringList{"large.tif"_q});
    };
    expectNothing(lum::buildOverviews(path, [](double share) { return share < 0.3; }), nullptr);
    {
        const SmallFiles full(20000);
        expectNothing(lum::buildOverviews(path, kToTheEnd), "\"large.tif\"");
    }
    expectNothing(lum::buildOverviews(folder.path("none.tif"), kToTheEnd), "\"none.tif\"");
    expectNothing(lum::buildOverviews("/proc/x.tif"_q, kToTheEnd), "\"/proc\" cannot be written");
    folder.write("text.tif", "not a picture");
    EXPECT_FALSE(lum::buildOverviews(folder.path("text.tif"), kToTheEnd).fault.isEmpty());
}

TEST(OverviewBuilder, WorksInTheBackgroundOneFileAfterTheOther)
{
    int count = 0;
    QCoreApplication application(count, nullptr);
    const TestFolder folder;
    const QStringList paths = {folder.path("a.tif"), folder.path("b.tif")};
    for (const QString& path : paths)
        ASSERT_TRUE(GeoTiff{}.write(path));
    lum::OverviewBuilder builder;
    QStringList finished;
    QObject::connect(&builder, &lum::OverviewBuilder::finished, &builder,
                     [&](const QString& path, const lum::OverviewResult& result) {
                         EXPECT_TRUE(result.isBuilt) << result.fault.toStdString();
                         finished << path;
                     });
    for (const QString& path : {paths[0], paths[1], paths[0]})
        builder.add(path);
    EXPECT_EQ(builder.current(), paths[0]);
    EXPECT_EQ(builder.waitingCount(), 1);
    QElapsedTimer time;
    for (time.start(); finished.size() < 2 && time.elapsed() < 20000;)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    EXPECT_EQ(finished, paths);
}

TEST(OverviewBuilder, EndsAtOnceWithTheProgram)
{
    int count = 0;
    QCoreApplication application(count, nullptr);
    const TestFolder folder;
    const QString path = folder.path("huge.tif");
    GeoTiff tiff{{60000, 60000}};
    tiff.isSparse = true;
    ASSERT_TRUE(tiff.write(path));
    QElapsedTimer time;
    {
        lum::OverviewBuilder builder;
        builder.add(path);
        time.start();
        while (time.elapsed() < 300)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        time.restart();
    }
    EXPECT_LT(time.elapsed(), 1000);
    EXPECT_EQ(filesIn(folder), QStringList{"huge.tif"_q});
}

} // namespace
