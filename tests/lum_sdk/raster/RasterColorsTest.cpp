#include "tests/lum_sdk/raster/RasterPictures.h"
#include "tests/support/MadeRaster.h"
#include "tests/support/TestFolder.h"

#include <cmath>

using namespace raster_test;

namespace {

/// A raster of 64 x 64 pixels of 1 m.
MadeRaster smallRaster(int bands, GDALDataType type)
{
    MadeRaster made;
    made.size = {64, 64};
    made.bands = bands;
    made.type = type;
    return made;
}

/// What a raster looks like, a device pixel for each of its own, on magenta.
QImage shown(const MadeRaster& made)
{
    const TestFolder folder;
    EXPECT_TRUE(made.write(folder.path("made.tif")));
    lum::RasterImage image(folder.path("made.tif"));
    EXPECT_TRUE(image.isUsable()) << image.fault().toStdString();
    const basalt::Dictionary system = systemOf("32650");
    return pictureOf(image, viewOf(made.size, image.extent(system), system));
}

} // namespace

TEST(RasterColors, RedGreenAndBlueKeepTheirPlaces)
{
    MadeRaster made = smallRaster(3, GDT_Byte);
    made.value = [](int, int, int band) { return 10.0 * (band + 1); };
    EXPECT_EQ(shown(made).pixel(5, 5), qRgb(10, 20, 30));
    made.finish = [](GDALDatasetH file) { // by their meaning, not by their order
        GDALSetRasterColorInterpretation(GDALGetRasterBand(file, 1), GCI_BlueBand);
        GDALSetRasterColorInterpretation(GDALGetRasterBand(file, 2), GCI_GreenBand);
        GDALSetRasterColorInterpretation(GDALGetRasterBand(file, 3), GCI_RedBand);
    };
    EXPECT_EQ(shown(made).pixel(5, 5), qRgb(30, 20, 10));
}

TEST(RasterColors, PalettesAreLookedUp)
{
    MadeRaster made = smallRaster(1, GDT_Byte);
    made.value = [](int column, int, int) { return column < 32 ? 1 : column < 48 ? 2 : 200; };
    made.finish = [](GDALDatasetH file) {
        const GDALColorTableH table = GDALCreateColorTable(GPI_RGB);
        const GDALColorEntry colors[] = {{0, 0, 0, 255}, {255, 128, 0, 255}, {0, 0, 255, 255}};
        for (int i = 0; i < 3; ++i)
            GDALSetColorEntry(table, i, &colors[i]);
        GDALSetRasterColorTable(GDALGetRasterBand(file, 1), table);
        GDALSetRasterNoDataValue(GDALGetRasterBand(file, 1), 2);
        GDALDestroyColorTable(table);
    };
    const QImage picture = shown(made);
    EXPECT_EQ(picture.pixel(5, 5), qRgb(255, 128, 0));
    EXPECT_EQ(picture.pixel(40, 5), kPaper); // no data
}

TEST(RasterColors, OneBandIsGreyAndOneBitIsBlackAndWhite)
{
    MadeRaster made = smallRaster(1, GDT_Byte);
    made.value = [](int column, int, int) { return column % 2; };
    EXPECT_EQ(shown(made).pixel(1, 0), qRgb(1, 1, 1)); // bytes are shown as they are
    made.options = {"NBITS=1"};
    const QImage picture = shown(made);
    EXPECT_EQ(picture.pixel(1, 0), qRgb(255, 255, 255));
    EXPECT_EQ(picture.pixel(2, 0), qRgb(0, 0, 0));
}

// 4096 pixels: 81 of them are 2 %.
TEST(RasterColors, WideValuesAreStretchedFromThe2ndToThe98thPercentile)
{
    for (const GDALDataType type : {GDT_UInt16, GDT_Int16, GDT_Float32, GDT_Float64}) {
        MadeRaster made = smallRaster(1, type);
        made.value = [](int column, int row, int) {
            const int number = 64 * row + column;
            if (number < 60)
                return -5000.0; // few enough not to count
            return number >= 4040 ? 30000.0 : 1000.0 + column;
        };
        const QImage picture = shown(made);
        EXPECT_EQ(qRed(picture.pixel(0, 5)), 0) << type;
        EXPECT_EQ(qRed(picture.pixel(63, 5)), 255) << type;
        EXPECT_NEAR(qRed(picture.pixel(31, 5)), 125, 6) << type;
        EXPECT_EQ(qRed(picture.pixel(0, 0)), 0) << type;
        EXPECT_EQ(qRed(picture.pixel(63, 63)), 255) << type;
    }
}

TEST(RasterColors, NoDataIsTransparentAndNotStretched)
{
    MadeRaster made = smallRaster(1, GDT_Float32);
    made.value = [](int column, int row, int) {
        if (row < 20)
            return -9999.0;
        return row < 40 ? std::nan("") : 1.0 + column / 64.0;
    };
    made.finish = [](GDALDatasetH file) {
        GDALSetRasterNoDataValue(GDALGetRasterBand(file, 1), -9999);
    };
    const QImage picture = shown(made);
    EXPECT_EQ(picture.pixel(10, 10), kPaper);
    EXPECT_EQ(picture.pixel(10, 30), kPaper);
    EXPECT_EQ(qRed(picture.pixel(0, 50)), 0);
    EXPECT_EQ(qRed(picture.pixel(63, 50)), 255);
    made.value = [](int, int, int) { return 7.0; };
    EXPECT_EQ(qRed(shown(made).pixel(5, 5)), 128); // all the same: a middle grey
}

TEST(RasterColors, OfSeveralBandsAllMustBeWithoutData)
{
    MadeRaster made = smallRaster(3, GDT_Byte);
    made.value = [](int column, int, int band) { return column < 32 && band == 0 ? 255 : 0; };
    made.finish = [](GDALDatasetH file) {
        for (int band = 1; band <= 3; ++band)
            GDALSetRasterNoDataValue(GDALGetRasterBand(file, band), 0);
    };
    const QImage picture = shown(made);
    EXPECT_EQ(picture.pixel(5, 5), qRgb(255, 0, 0)); // pure red has two zeros
    EXPECT_EQ(picture.pixel(40, 5), kPaper);
}

TEST(RasterColors, AlphaLetsTheGroundThrough)
{
    MadeRaster made = smallRaster(4, GDT_Byte);
    made.value = [](int column, int, int band) {
        if (band < 3)
            return 200;
        return column < 20 ? 0 : column < 40 ? 128 : 255;
    };
    made.options = {"ALPHA=YES", "PHOTOMETRIC=RGB"};
    QImage picture = shown(made);
    EXPECT_EQ(picture.pixel(5, 5), kPaper);
    EXPECT_NEAR(qGreen(picture.pixel(30, 5)), 100, 2); // half of 200 and half of 0
    EXPECT_EQ(picture.pixel(50, 5), qRgb(200, 200, 200));

    made.type = GDT_UInt16;
    made.value = [](int column, int, int band) {
        return band < 3 ? column : column < 32 ? 0 : 65535;
    };
    picture = shown(made);
    EXPECT_EQ(picture.pixel(5, 5), kPaper);
    EXPECT_EQ(picture.pixel(63, 5), qRgb(255, 255, 255));
}

TEST(RasterColors, MasksHideAlsoInOverviewsBuiltWithoutThem)
{
    MadeRaster made = smallRaster(3, GDT_Byte);
    made.size = {512, 512};
    made.place[1] = 0.125;
    made.place[5] = -0.125;
    made.overviews = {2, 4, 8};
    made.value = [](int, int, int) { return 50; };
    made.masked = QRect(256, 0, 256, 512);
    const TestFolder folder;
    ASSERT_TRUE(made.write(folder.path("mask.tif")));
    lum::RasterImage image(folder.path("mask.tif"));
    const basalt::Dictionary system = systemOf("32650");
    for (const int side : {512, 64}) {
        const QImage picture = pictureOf(image, viewOf({side, side}, image.extent(system), system));
        EXPECT_EQ(picture.pixel(side / 4, 5), qRgb(50, 50, 50)) << side;
        EXPECT_EQ(picture.pixel(3 * side / 4, 5), kPaper) << side;
    }
}
