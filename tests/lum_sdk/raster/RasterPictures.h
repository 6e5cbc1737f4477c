#pragma once

#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/raster/RasterImage.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

/// Pictures of rasters as the map paints them, on magenta where there is nothing.
namespace raster_test {

inline constexpr QRgb kPaper = 0xffff00ff;

inline basalt::Dictionary systemOf(const char* epsg)
{
    basalt::Dictionary system;
    EXPECT_EQ(fillFromEpsg(epsg, system), "");
    return system;
}

/// \param extent  map coordinates; it fills the picture
inline lum::RasterView viewOf(const QSize& size, const QRectF& extent,
                              const basalt::Dictionary& system, double pixelRatio = 1)
{
    lum::RasterView view;
    view.transform.setSize(size);
    view.transform.fit(extent, 0);
    view.system = system;
    view.pixelRatio = pixelRatio;
    return view;
}

inline QImage paperFor(const lum::RasterView& view)
{
    QImage picture(view.pixels(), QImage::Format_RGB32);
    picture.fill(kPaper);
    picture.setDevicePixelRatio(view.pixelRatio);
    return picture;
}

inline QImage pictureOf(lum::RasterImage& image, const lum::RasterView& view, double opacity = 1)
{
    QImage picture = paperFor(view);
    QPainter painter(&picture);
    EXPECT_TRUE(image.paint(view, painter, opacity));
    return picture;
}

} // namespace raster_test
