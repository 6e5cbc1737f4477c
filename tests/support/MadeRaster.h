#pragma once

#include <QColor>
#include <QFile>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <cpl_conv.h>
#include <cpl_string.h>
#include <gdal.h>
#include <ogr_srs_api.h>

#include <array>
#include <functional>
#include <vector>

/// How a test's GeoTIFF is made.
struct MadeRaster
{
    QSize size{256, 256};
    int bands = 3;
    GDALDataType type = GDT_Byte;
    int epsg = 32650; ///< 0: none
    /// As GDAL counts it: X of the corner, X a column, X a row, Y of the corner, Y a column, Y a
    /// row.
    std::array<double, 6> place{500000, 1, 0, 4400000, 0, -1};
    std::vector<const char*> options; ///< of the driver, such as "TILED=YES"
    std::vector<int> overviews;       ///< factors
    const char* resampling = "NEAREST";
    /// The value of a pixel: column, row, band from 0.
    std::function<double(int, int, int)> value = [](int, int, int) { return 0.0; };
    std::function<void(GDALDatasetH)>
        finish;   ///< sets no data, palettes and so on, before the values
    QRect masked; ///< these pixels hold no data, by a mask inside the file

    /// \returns whether all went well
    [[nodiscard]] bool write(const QString& path, const char* driver = "GTiff") const
    {
        GDALAllRegister();
        CPLStringList list;
        for (const char* option : options)
            list.AddString(option);
        const GDALDatasetH dataset =
            GDALCreate(GDALGetDriverByName(driver), QFile::encodeName(path).constData(),
                       size.width(), size.height(), bands, type, list.List());
        if (dataset == nullptr)
            return false;
        auto transform = place;
        if (transform != std::array<double, 6>{})
            GDALSetGeoTransform(dataset, transform.data());
        setSystem(dataset);
        if (finish)
            finish(dataset);
        bool isGood = writeValues(dataset) && (masked.isEmpty() || writeMask(dataset));
        if (!overviews.empty())
            isGood =
                GDALBuildOverviews(dataset, resampling, static_cast<int>(overviews.size()),
                                   overviews.data(), 0, nullptr, nullptr, nullptr) == CE_None &&
                isGood;
        GDALClose(dataset);
        return isGood;
    }

private:
    void setSystem(GDALDatasetH dataset) const
    {
        if (epsg == 0)
            return;
        const OGRSpatialReferenceH system = OSRNewSpatialReference(nullptr);
        OSRImportFromEPSG(system, epsg);
        GDALSetSpatialRef(dataset, system);
        OSRDestroySpatialReference(system);
    }

    [[nodiscard]] bool writeValues(GDALDatasetH dataset) const
    {
        std::vector<double> line(std::size_t(size.width()));
        for (int band = 0; value && band < bands; ++band) {
            for (int row = 0; row < size.height(); ++row) {
                for (int column = 0; column < size.width(); ++column)
                    line[std::size_t(column)] = value(column, row, band);
                if (GDALRasterIO(GDALGetRasterBand(dataset, band + 1), GF_Write, 0, row,
                                 size.width(), 1, line.data(), size.width(), 1, GDT_Float64, 0,
                                 0) != CE_None)
                    return false;
            }
        }
        return true;
    }
    [[nodiscard]] bool writeMask(GDALDatasetH dataset) const
    {
        CPLSetThreadLocalConfigOption("GDAL_TIFF_INTERNAL_MASK", "YES");
        const bool isMade = GDALCreateDatasetMaskBand(dataset, GMF_PER_DATASET) == CE_None;
        CPLSetThreadLocalConfigOption("GDAL_TIFF_INTERNAL_MASK", nullptr);
        const GDALRasterBandH mask = GDALGetMaskBand(GDALGetRasterBand(dataset, 1));
        std::vector<unsigned char> holes(std::size_t(masked.width() * masked.height()), 0);
        return isMade && GDALFillRaster(mask, 255, 0) == CE_None &&
               GDALRasterIO(mask, GF_Write, masked.x(), masked.y(), masked.width(), masked.height(),
                            holes.data(), masked.width(), masked.height(), GDT_Byte, 0,
                            0) == CE_None;
    }
};

/// A value that tells where a pixel lies, up to 4096 pixels across and down; see `placeOf`.
inline double placeValue(int column, int row, int band)
{
    if (band == 0)
        return column & 255;
    return band == 1 ? row & 255 : (column >> 8) << 4 | row >> 8;
}

/// The pixel that a colour of `placeValue` comes from.
inline QPoint placeOf(QRgb color)
{
    return {qRed(color) | (qBlue(color) >> 4) << 8, qGreen(color) | (qBlue(color) & 15) << 8};
}

/// A raster of one colour with its upper left corner at (easting, northing). A black one has no
/// content and may be very large.
inline MadeRaster plainRaster(const QSize& size, const QColor& color = Qt::red,
                              const QPointF& corner = {})
{
    MadeRaster made;
    made.size = size;
    made.place = {corner.x(), 1, 0, corner.y(), 0, -1};
    made.options = {"TILED=YES", "SPARSE_OK=TRUE", "INTERLEAVE=PIXEL"};
    made.value = nullptr;
    if (color == Qt::black)
        return made;
    made.finish = [color](GDALDatasetH file) {
        for (const auto& [band, value] :
             {std::pair(1, color.red()), {2, color.green()}, {3, color.blue()}})
            GDALFillRaster(GDALGetRasterBand(file, band), value, 0);
    };
    return made;
}
