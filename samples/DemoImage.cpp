#include "samples/DemoImage.h"

#include "lum_sdk/files/WholeFile.h"
#include "samples/GroundColors.h"

#include <QByteArray>
#include <QString>

#include <cpl_error.h>
#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal.h>
#include <ogr_srs_api.h>

#include <memory>

namespace demo {

namespace {

constexpr const char* kInMemory = "/vsimem/skyquill-demo-ground.tif";
constexpr GroundRaster kRaster{{4565600, 507200}, 2, 3100, 3050}; // the design and its stations
constexpr int kChannels = 3;

struct CloseDataset
{
    void operator()(GDALDatasetH dataset) const { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<void, CloseDataset>;

std::string wktOfSurvey()
{
    const OGRSpatialReferenceH system = OSRNewSpatialReference(nullptr);
    char* text = nullptr;
    if (OSRImportFromEPSG(system, std::stoi(kEpsgCode)) == OGRERR_NONE)
        OSRExportToWkt(system, &text);
    std::string wkt = text != nullptr ? text : "";
    CPLFree(text);
    OSRDestroySpatialReference(system);
    return wkt;
}

Dataset createImage()
{
    char** options = nullptr;
    for (const char* option :
         {"TILED=YES", "COMPRESS=JPEG", "PHOTOMETRIC=YCBCR", "JPEG_QUALITY=85"})
        options = CSLAddString(options, option);
    const GDALDriverH driver = GDALGetDriverByName("GTiff");
    Dataset dataset(driver == nullptr ? nullptr
                                      : GDALCreate(driver, kInMemory, kRaster.columns, kRaster.rows,
                                                   kChannels, GDT_Byte, options));
    CSLDestroy(options);
    return dataset;
}

bool fill(GDALDatasetH dataset)
{
    double place[] = {kRaster.upperLeft.east, kRaster.pixelM, 0, kRaster.upperLeft.north, 0,
                      -kRaster.pixelM};
    std::vector<std::uint8_t> pixels = groundColors(kRaster);
    int overviews[] = {2, 4, 8};
    return GDALSetGeoTransform(dataset, place) == CE_None &&
           GDALSetProjection(dataset, wktOfSurvey().c_str()) == CE_None &&
           GDALDatasetRasterIO(dataset, GF_Write, 0, 0, kRaster.columns, kRaster.rows,
                               pixels.data(), kRaster.columns, kRaster.rows, GDT_Byte, kChannels,
                               nullptr, kChannels, kChannels * kRaster.columns, 1) == CE_None &&
           GDALBuildOverviews(dataset, "AVERAGE", 3, overviews, 0, nullptr, nullptr, nullptr) ==
               CE_None;
}

/// Takes the file out of GDAL's memory.
QByteArray takeFile()
{
    vsi_l_offset size = 0;
    GByte* const bytes = VSIGetMemFileBuffer(kInMemory, &size, TRUE);
    QByteArray content(reinterpret_cast<const char*>(bytes), static_cast<int>(size));
    CPLFree(bytes);
    return content;
}

} // namespace

QString writeDemoImage(const QString& path)
{
    GDALAllRegister();
    CPLErrorReset();
    bool isDone = false;
    {
        const Dataset dataset = createImage();
        isDone = dataset && fill(dataset.get());
    }
    const QByteArray content = takeFile();
    if (!isDone)
        return QStringLiteral("The image of the ground cannot be made: %1")
            .arg(QString::fromUtf8(CPLGetLastErrorMsg()));
    return lum::writeWholeFile(path, content);
}

} // namespace demo
