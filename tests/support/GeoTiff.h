#pragma once

#include <QColor>
#include <QPointF>
#include <QSize>
#include <QString>

#include <gdal.h>
#include <ogr_srs_api.h>

#include <array>
#include <memory>
#include <vector>

/// A GeoTIFF of one colour.
struct GeoTiff
{
    QSize size{100, 100};
    QColor color = Qt::red;
    QPointF corner = {}; ///< the upper left, easting and northing
    double pixel = 1;
    int epsg = 32650;      ///< 0: without a coordinate system
    bool isSparse = false; ///< nothing is written: all pixels are 0, also of a very large one
    int maskedRows = 0;    ///< so many of the first rows hold no data

    /// \returns whether it was written
    [[nodiscard]] bool write(const QString& path) const
    {
        GDALAllRegister();
        const char* const options[] = {"TILED=YES", "SPARSE_OK=TRUE", "INTERLEAVE=PIXEL", nullptr};
        const std::unique_ptr<void, void (*)(void*)> file(
            GDALCreate(GDALGetDriverByName("GTiff"), path.toUtf8().constData(), size.width(),
                       size.height(), 3, GDT_Byte, options),
            [](void* dataset) { GDALClose(dataset); });
        if (file == nullptr)
            return false;
        std::array<double, 6> place{corner.x(), pixel, 0, corner.y(), 0, -pixel};
        bool isWritten = GDALSetGeoTransform(file.get(), place.data()) == CE_None;
        if (epsg != 0)
            isWritten = isWritten && writeSystem(file.get());
        if (!isSparse)
            isWritten = isWritten && writeColors(file.get());
        return isWritten && (maskedRows == 0 || writeMask(file.get()));
    }

private:
    [[nodiscard]] bool writeSystem(GDALDatasetH file) const
    {
        const OGRSpatialReferenceH system = OSRNewSpatialReference(nullptr);
        const bool isWritten = OSRImportFromEPSG(system, epsg) == OGRERR_NONE &&
                               GDALSetSpatialRef(file, system) == CE_None;
        OSRDestroySpatialReference(system);
        return isWritten;
    }
    [[nodiscard]] bool writeColors(GDALDatasetH file) const
    {
        const int values[] = {color.red(), color.green(), color.blue()};
        for (int band = 1; band <= 3; ++band) {
            if (GDALFillRaster(GDALGetRasterBand(file, band), values[band - 1], 0) != CE_None)
                return false;
        }
        return true;
    }
    [[nodiscard]] bool writeMask(GDALDatasetH file) const
    {
        if (GDALCreateDatasetMaskBand(file, GMF_PER_DATASET) != CE_None)
            return false;
        const GDALRasterBandH mask = GDALGetMaskBand(GDALGetRasterBand(file, 1));
        std::vector<unsigned char> row(static_cast<std::size_t>(size.width()));
        for (int y = 0; y < size.height(); ++y) {
            std::fill(row.begin(), row.end(), static_cast<unsigned char>(y < maskedRows ? 0 : 255));
            if (GDALRasterIO(mask, GF_Write, 0, y, size.width(), 1, row.data(), size.width(), 1,
                             GDT_Byte, 0, 0) != CE_None)
                return false;
        }
        return true;
    }
};
