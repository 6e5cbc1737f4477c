#include "lum_sdk/raster/Halo.h"

#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace {

const QColor kPaper(Qt::white);

QImage image(int width, int height, const QColor& color, double ratio = 1)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(color);
    return image;
}

/// A blue column of `thickness` pixels from the top to the bottom of a black picture, with a halo.
QImage columnAt(int x, int width, int height, int thickness = 1, double ratio = 1)
{
    QImage drawing = image(width, height, Qt::transparent, ratio);
    for (int y = 0; y < height; ++y) {
        for (int i = x; i < x + thickness; ++i)
            drawing.setPixelColor(i, y, Qt::blue);
    }
    QImage picture = image(width, height, Qt::black, ratio);
    lum::drawWithHalo(picture, drawing, kPaper);
    return picture;
}

} // namespace

TEST(Halo, IsFullBesideALineAndEndsSoftly)
{
    for (const int x : {0, 1, 30, 31, 32, 33, 68, 69}) { // at the edges of the image and of cells
        const QImage picture = columnAt(x, 70, 45);
        for (const int y : {2, 29, 30, 31, 32, 33, 42}) {
            for (int at = 0; at < 70; ++at) {
                const QColor color = picture.pixelColor(at, y);
                const int distance = std::abs(at - x);
                SCOPED_TRACE(testing::Message() << x << ": " << at << ' ' << y);
                if (distance == 0)
                    EXPECT_EQ(color, QColor(Qt::blue));
                else if (distance == 1)
                    EXPECT_NEAR(color.red(), 207, 4);
                else if (distance == 2)
                    EXPECT_NEAR(color.red(), 62, 4);
                else
                    EXPECT_EQ(color, QColor(Qt::black));
            }
        }
        EXPECT_GT(picture.pixelColor(x == 0 ? 1 : x - 1, 0).red(), 150); // where the line begins
    }
}

TEST(Halo, LiesUnderEdgesThatLetTheGroundShineThrough)
{
    QImage drawing = image(9, 9, Qt::transparent);
    drawing.setPixelColor(4, 4, QColor(0, 0, 255, 128));
    QImage picture = image(9, 9, Qt::black);
    lum::drawWithHalo(picture, drawing, kPaper);
    const QColor edge = picture.pixelColor(4, 4);
    EXPECT_GT(edge.red(), 30); // half of the halo there
    EXPECT_NEAR(edge.blue(), 128 + edge.red(), 3);
    EXPECT_EQ(edge.alpha(), 255);
}

TEST(Halo, IsAsWideOnAFineScreen)
{
    const QImage picture = columnAt(20, 45, 40, 2, 2);
    EXPECT_NEAR(picture.pixelColor(23, 20).red(), 207, 30); // two device pixels away
    EXPECT_GT(picture.pixelColor(25, 20).red(), 20);
    EXPECT_EQ(picture.pixelColor(26, 20), QColor(Qt::black));
    columnAt(0, 1, 1, 1, 40); // a ratio that no screen has
}
