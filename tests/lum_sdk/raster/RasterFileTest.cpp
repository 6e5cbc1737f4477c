#include "lum_sdk/raster/RasterSource.h"
#include "tests/lum_sdk/raster/RasterPictures.h"
#include "tests/support/Literals.h"
#include "tests/support/MadeRaster.h"
#include "tests/support/TestFolder.h"

#include <QElapsedTimer>
#include <QFileInfo>

#include <future>
#include <thread>

using namespace raster_test;

namespace {

const basalt::Dictionary& utm50()
{
    static const basalt::Dictionary kSystem = systemOf("32650");
    return kSystem;
}

/// All of an image, about so many pixels wide.
QImage wholePicture(lum::RasterImage& image, int width = 200)
{
    const QRectF extent = image.extent(utm50());
    const int height = std::max(1, static_cast<int>(width * extent.height() / extent.width()));
    return pictureOf(image, viewOf({width, height}, extent, utm50()));
}

/// Columns are bright and dark in turn, each 64 pixels wide.
double stripes(int column, int /*row*/, int /*band*/)
{
    return column / 64 % 2 == 0 ? 250 : 20;
}

std::string faultOf(const QString& path)
{
    const lum::RasterImage image(path);
    EXPECT_FALSE(image.isUsable());
    return image.fault().toStdString();
}

} // namespace

TEST(RasterFile, WhatIsNoImageIsRefusedByName)
{
    const TestFolder folder;
    EXPECT_EQ(faultOf(folder.path("no file.tif")), "There is no file \"no file.tif\".");
    EXPECT_EQ(faultOf(folder.write("empty.tif", "")), "The file \"empty.tif\" is empty.");
    const std::string fault = faultOf(folder.write("文字.tif", "line,point,north,east\n"));
    EXPECT_EQ(fault.rfind("\"文字.tif\" cannot be read as an image: ", 0), 0U) << fault;
    EXPECT_NE(faultOf(folder.path()).find("cannot be read as an image"), std::string::npos);
    // A description of a map service would send requests.
    const std::string service =
        faultOf(folder.write("service.xml", "<GDAL_WMS><Service name=\"TMS\"><ServerUrl>"
                                            "http://127.0.0.1:1/${z}/${x}/${y}</ServerUrl>"
                                            "</Service></GDAL_WMS>"));
    EXPECT_NE(service.find("cannot be read as an image"), std::string::npos) << service;
}

TEST(RasterFile, WithoutAPlaceItSaysSo)
{
    const TestFolder folder;
    MadeRaster made;
    made.epsg = 0;
    made.place = {};
    ASSERT_TRUE(made.write(folder.path("photo.tif")));
    EXPECT_EQ(faultOf(folder.path("photo.tif")),
              "\"photo.tif\" does not say where it lies: it has neither a position of its own nor "
              "a world file beside it.");
    folder.write("photo.tfw", "2\n0\n0\n-2\n500001\n4399999\n"); // centre of the first pixel
    const lum::RasterImage placed(folder.path("photo.tif"));
    EXPECT_TRUE(placed.isUsable());
    EXPECT_EQ(placed.extent(utm50()), QRectF(500000, 4399488, 512, 512));
}

TEST(RasterFile, TellsWhatItIs)
{
    const TestFolder folder;
    MadeRaster made;
    made.size = {5000, 4000};
    made.value = nullptr;
    made.options = {"SPARSE_OK=TRUE"};
    const QString path = folder.path("带 空格.tif");
    ASSERT_TRUE(made.write(path));
    const lum::RasterInfo info = lum::RasterImage(path).info();
    EXPECT_EQ(info.size, QSize(5000, 4000));
    EXPECT_EQ(info.systemName, "WGS 84 / UTM zone 50N"_q);
    EXPECT_TRUE(info.lacksOverviews());
    made.overviews = {2, 4};
    ASSERT_TRUE(made.write(path));
    const lum::RasterInfo withOverviews = lum::RasterImage(path).info();
    EXPECT_FALSE(withOverviews.lacksOverviews());
    ASSERT_GE(withOverviews.levels.size(), 4U);
    EXPECT_EQ(withOverviews.levels[2].size, QSize(1250, 1000));
    EXPECT_TRUE(withOverviews.levels[2].isStored);
    EXPECT_FALSE(withOverviews.levels[3].isStored);
}

TEST(RasterFile, RotatedRastersAreShownRotated)
{
    const TestFolder folder;
    MadeRaster made;
    made.size = {100, 100};
    // Columns run to the north-east, rows to the south-east, with half a metre to a pixel.
    const double half = std::sqrt(0.5) / 2;
    made.place = {500000, half, half, 4400000, half, -half};
    made.value = [](int column, int row, int band) {
        return band == 0 ? column : band == 1 ? row : 0;
    };
    ASSERT_TRUE(made.write(folder.path("turned.tif")));
    lum::RasterImage image(folder.path("turned.tif"));
    const QRectF extent = image.extent(utm50());
    EXPECT_NEAR(extent.left(), 500000, 1e-6);
    EXPECT_NEAR(extent.width(), 200 * half, 1e-6);
    EXPECT_NEAR(extent.center().y(), 4400000, 1e-6);
    const QImage picture = pictureOf(image, viewOf({400, 400}, extent, utm50()));
    EXPECT_EQ(picture.pixel(10, 10), kPaper);
    const QRgb left = picture.pixel(8, 200); // the first column and row
    EXPECT_LE(qRed(left) + qGreen(left), 4);
    const QRgb top = picture.pixel(200, 6); // the last column of the first row
    EXPECT_GE(qRed(top), 97);
    EXPECT_LE(qGreen(top), 2);
}

TEST(RasterFile, WhatIsCutOffShowsWhatIsThereAndTellsTheRest)
{
    const TestFolder folder;
    MadeRaster made;
    made.size = {1024, 1024};
    made.options = {"TILED=YES", "COMPRESS=DEFLATE"};
    made.value = [](int column, int row, int) { return (column * 31 + row * 17) % 200 + 40; };
    ASSERT_TRUE(made.write(folder.path("cut off.tif")));
    QFile file(folder.path("cut off.tif"));
    ASSERT_TRUE(file.resize(file.size() / 2));
    lum::RasterImage image(folder.path("cut off.tif"));
    ASSERT_TRUE(image.isUsable()) << image.fault().toStdString();
    EXPECT_EQ(image.fault(), QString());
    const QImage picture = wholePicture(image, 1024);
    EXPECT_EQ(image.fault().toStdString().rfind("Parts of \"cut off.tif\" cannot be read: ", 0), 0U)
        << image.fault().toStdString();
    EXPECT_NE(picture.pixel(5, 5), kPaper);
    EXPECT_EQ(picture.pixel(1000, 1000), kPaper);
}

TEST(RasterFile, HugeFilesWithoutContentAreShownInTime)
{
    const TestFolder folder;
    MadeRaster made;
    made.size = {100000, 100000};
    made.options = {"TILED=YES", "SPARSE_OK=TRUE", "BIGTIFF=YES", "COMPRESS=DEFLATE"};
    made.value = nullptr;
    ASSERT_TRUE(made.write(folder.path("huge.tif")));
    EXPECT_LT(QFileInfo(folder.path("huge.tif")).size(), 20'000'000);
    lum::RasterImage image(folder.path("huge.tif"));
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(wholePicture(image, 1000).pixel(500, 500), qRgb(0, 0, 0));
    EXPECT_LT(clock.elapsed(), 5000);
}

TEST(RasterFile, OverviewsAreUsedWhereTheyFitTheScreen)
{
    const TestFolder folder;
    MadeRaster made;
    made.size = {2048, 2048};
    made.overviews = {2, 4};
    made.resampling = "AVERAGE";
    made.value = [](int column, int row, int) { return (column + row) % 2 * 200; };
    ASSERT_TRUE(made.write(folder.path("made.tif")));
    lum::RasterImage image(folder.path("made.tif"));
    // A chess board: grey in an overview, black or white in the full resolution.
    const auto isGrey = [&](int side, double ratio) {
        const QImage picture =
            pictureOf(image, viewOf({side, side}, image.extent(utm50()), utm50(), ratio));
        return std::abs(qRed(picture.pixel(100, 100)) - 100) <= 1;
    };
    EXPECT_FALSE(isGrey(2048, 1));
    EXPECT_TRUE(isGrey(1024, 1));
    EXPECT_FALSE(isGrey(1024, 2)); // a fine screen shows all pixels
    EXPECT_TRUE(isGrey(512, 1));
    EXPECT_TRUE(isGrey(100, 1.25)); // beyond the coarsest overview
}

TEST(RasterFile, WhatTheTimeDoesNotAllowFollowsLater)
{
    const TestFolder folder;
    MadeRaster made;
    made.size = {2048, 2048};
    made.overviews = {8};
    made.value = stripes;
    ASSERT_TRUE(made.write(folder.path("made.tif")));
    lum::RasterImage image(folder.path("made.tif"));
    lum::RasterView view = viewOf({2048, 2048}, image.extent(utm50()), utm50());
    view.deadline = lum::RasterView::Clock::now();
    QImage picture = paperFor(view);
    QPainter painter(&picture);
    EXPECT_FALSE(image.paint(view, painter));
    EXPECT_EQ(qRed(picture.pixel(32, 32)), 250); // from the overview
    EXPECT_EQ(qRed(picture.pixel(96, 32)), 20);
    view.deadline = lum::RasterView::Clock::time_point::max();
    EXPECT_TRUE(image.paint(view, painter));
    EXPECT_EQ(qRed(picture.pixel(63, 32)), 250);
    EXPECT_EQ(qRed(picture.pixel(64, 32)), 20);
    view.deadline = lum::RasterView::Clock::now();
    EXPECT_TRUE(image.paint(view, painter)); // all is in the cache
}

// 256 MB of zeros, which have to be decompressed as a whole.
TEST(RasterFile, ACancelledPictureEndsAtOnce)
{
    const TestFolder folder;
    MadeRaster made;
    made.size = {16384, 16384};
    made.bands = 1;
    made.options = {"TILED=YES", "COMPRESS=LZW"};
    made.finish = [](GDALDatasetH file) { GDALFillRaster(GDALGetRasterBand(file, 1), 50, 0); };
    made.value = nullptr;
    ASSERT_TRUE(made.write(folder.path("large.tif")));
    lum::RasterImage image(folder.path("large.tif"));
    std::atomic<bool> isCancelled = false;
    lum::RasterView view = viewOf({1000, 1000}, image.extent(utm50()), utm50());
    view.cancelled = &isCancelled;
    QElapsedTimer clock;
    auto cancelling = std::async(std::launch::async, [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        clock.start();
        isCancelled = true;
    });
    QImage picture = paperFor(view);
    QPainter painter(&picture);
    const bool isDone = image.paint(view, painter);
    cancelling.get();
    EXPECT_TRUE(isDone); // no rest: nobody wants it any more
    EXPECT_LT(clock.elapsed(), 50);
}
