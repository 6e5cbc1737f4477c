#include "lum_sdk/raster/OverviewBuilder.h"

#include "lum_sdk/raster/RasterSource.h"
#include "tests/support/Literals.h"
#include "tests/support/MadeRaster.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>

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
    MadeRaster made = plainRaster({1300, 900}, QColor(200, 100, 50));
    made.masked = QRect(0, 0, 1300, 400);
    ASSERT_TRUE(made.write(path));
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
    ASSERT_TRUE(plainRaster({3000, 3000}).write(path));
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

TEST(OverviewBuilder, EndsAtOnceWithTheProgram)
{
    int count = 0;
    QCoreApplication application(count, nullptr);
    const TestFolder folder;
    const QString path = folder.path("huge.tif");
    ASSERT_TRUE(plainRaster({60000, 60000}, Qt::black).write(path));
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
