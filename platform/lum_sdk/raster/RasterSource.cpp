#include "lum_sdk/raster/RasterSource.h"

#include "lum_sdk/raster/GdalFault.h"
#include "lum_sdk/raster/RasterReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cpl_conv.h>
#include <cpl_string.h>
#include <gdal.h>
#include <ogr_srs_api.h>

#include <cmath>
#include <mutex>
#include <string_view>

namespace lum {

namespace {

constexpr GIntBig kCacheBytes = 64LL
                                << 20U; // the library's default grows with the machine's memory

struct CloseDataset
{
    void operator()(void* dataset) const { GDALClose(dataset); }
};
using DatasetOwner = std::unique_ptr<void, CloseDataset>;

void setUpLibrary()
{
    static std::once_flag isDone;
    std::call_once(isDone, [] {
        if (GDALGetDriverCount() == 0)
            GDALAllRegister();
        GDALSetCacheMax64(kCacheBytes);
        // A local file can name remote ones; they are not fetched.
        CPLSetConfigOption("CPL_VSIL_CURL_ALLOWED_FILENAME", "(none)");
    });
}

bool usesNetwork(std::string_view driver)
{
    static constexpr std::string_view kDrivers[] = {
        "WMS",       "WMTS",  "WCS",  "HTTP",   "OGCAPI",  "PLMOSAIC", "PLSCENES",
        "EEDA",      "EEDAI", "DAAS", "NGW",    "STACTA",  "STACIT",   "PostGISRaster",
        "GeoRaster", "DODS",  "CAD",  "TileDB", "JPIPKAK", "CARTO"};
    return std::find(std::begin(kDrivers), std::end(kDrivers), driver) != std::end(kDrivers);
}

/// The names of the drivers that read local rasters.
const CPLStringList& localDrivers()
{
    static const CPLStringList kNames = [] {
        CPLStringList names;
        for (int i = 0; i < GDALGetDriverCount(); ++i) {
            const GDALDriverH driver = GDALGetDriver(i);
            const char* const name = GDALGetDriverShortName(driver);
            if (GDALGetMetadataItem(driver, GDAL_DCAP_RASTER, nullptr) != nullptr &&
                !usesNetwork(name))
                names.AddString(name);
        }
        return names;
    }();
    return kNames;
}

DatasetOwner openDataset(const QByteArray& name, RasterDrivers drivers)
{
    const char* const* const allowed =
        drivers == RasterDrivers::LocalFiles ? localDrivers().List() : nullptr;
    return DatasetOwner(GDALOpenEx(name.constData(), GDAL_OF_RASTER | GDAL_OF_VERBOSE_ERROR,
                                   allowed, nullptr, nullptr));
}

/// The first picture of a file that holds several and is none itself.
QByteArray firstPart(GDALDatasetH dataset)
{
    const char* const* const parts = GDALGetMetadata(dataset, "SUBDATASETS");
    return CSLFetchNameValueDef(parts, "SUBDATASET_1_NAME", "");
}

QString openFault(const QString& name, const QString& reason, RasterDrivers drivers)
{
    const QFileInfo file(name);
    const char* sentence = QT_TRANSLATE_NOOP("Raster", "\"%1\" cannot be read as an image: %2");
    if (drivers == RasterDrivers::LocalFiles && !file.exists())
        sentence = QT_TRANSLATE_NOOP("Raster", "There is no file \"%1\".");
    else if (drivers == RasterDrivers::LocalFiles && file.isFile() && file.size() == 0)
        sentence = QT_TRANSLATE_NOOP("Raster", "The file \"%1\" is empty.");
    const QString text = QCoreApplication::translate("Raster", sentence);
    return text.contains(QLatin1String("%2")) ? text.arg(file.fileName(), reason)
                                              : text.arg(file.fileName());
}

std::vector<RasterBand> bandsOf(GDALDatasetH dataset)
{
    std::vector<RasterBand> bands;
    for (int number = 1; number <= GDALGetRasterCount(dataset); ++number) {
        const GDALRasterBandH band = GDALGetRasterBand(dataset, number);
        RasterBand found;
        found.meaning = QString::fromLatin1(
            GDALGetColorInterpretationName(GDALGetRasterColorInterpretation(band)));
        found.type = QString::fromLatin1(GDALGetDataTypeName(GDALGetRasterDataType(band)));
        int isKnown = 0;
        const double noData = GDALGetRasterNoDataValue(band, &isKnown);
        if (isKnown != 0)
            found.noData = noData;
        bands.push_back(found);
    }
    return bands;
}

/// By its geotransform or its control points.
OGRSpatialReferenceH findPlace(GDALDatasetH dataset, RasterInfo& info)
{
    std::array<double, 6> found{};
    OGRSpatialReferenceH system = GDALGetSpatialRef(dataset);
    info.isPlaced = GDALGetGeoTransform(dataset, found.data()) == CE_None;
    if (!info.isPlaced && GDALGetGCPCount(dataset) >= 3) {
        info.isPlaced = GDALGCPsToGeoTransform(GDALGetGCPCount(dataset), GDALGetGCPs(dataset),
                                               found.data(), 1) != 0;
        system = GDALGetGCPSpatialRef(dataset);
    }
    const double area = found[1] * found[5] - found[2] * found[4];
    info.isPlaced = info.isPlaced && std::isfinite(area) && area != 0 && std::isfinite(found[0]) &&
                    std::isfinite(found[3]);
    if (info.isPlaced)
        info.toCoordinates = found;
    return system;
}

void describeSystem(OGRSpatialReferenceH system, RasterInfo& info)
{
    // What is neither is a local system, which nothing relates to the project's.
    if (system == nullptr || (OSRIsProjected(system) == 0 && OSRIsGeographic(system) == 0))
        return;
    char* text = nullptr;
    static const char* const kOptions[] = {"FORMAT=WKT2_2019", nullptr};
    if (OSRExportToWktEx(system, &text, kOptions) == OGRERR_NONE)
        info.wkt = text;
    CPLFree(text);
    info.systemName = QString::fromUtf8(OSRGetName(system));
}

} // namespace

struct RasterSource::Dataset
{
    DatasetOwner handle;
    RasterLevels levels;
    RasterReader reader;
};

RasterSource::RasterSource(std::unique_ptr<Dataset> dataset) : m_dataset(std::move(dataset))
{
    const GDALDatasetH handle = m_dataset->handle.get();
    m_info.format = QString::fromLatin1(GDALGetDriverShortName(GDALGetDatasetDriver(handle)));
    if (m_info.format == QLatin1String("GTiff"))
        m_info.format = QStringLiteral("GeoTIFF");
    m_info.size = {GDALGetRasterXSize(handle), GDALGetRasterYSize(handle)};
    m_info.levels = m_dataset->levels.all();
    m_info.bands = bandsOf(handle);
    describeSystem(findPlace(handle, m_info), m_info);
}

RasterSource::~RasterSource()
{
    const GdalFault ignored; // of closing
    m_dataset.reset();
}

std::unique_ptr<RasterSource> RasterSource::open(const QString& name, QString& fault,
                                                 RasterDrivers drivers)
{
    setUpLibrary();
    const GdalFault complaints;
    DatasetOwner handle = openDataset(QFile::encodeName(name), drivers);
    if (handle && GDALGetRasterCount(handle.get()) == 0)
        handle = openDataset(firstPart(handle.get()), drivers);
    if (!handle || GDALGetRasterCount(handle.get()) == 0) {
        fault = openFault(name, complaints.text(), drivers);
        return nullptr;
    }
    auto dataset = std::make_unique<Dataset>();
    dataset->levels = RasterLevels(handle.get(), drivers == RasterDrivers::LocalFiles);
    dataset->reader = RasterReader(handle.get(), dataset->levels);
    dataset->handle = std::move(handle);
    return std::unique_ptr<RasterSource>(new RasterSource(std::move(dataset))); // NOLINT
}

QImage RasterSource::readBlock(std::size_t level, int column, int row, QString& fault,
                               const RasterStop& stop)
{
    const GdalFault complaints;
    QImage block = m_dataset->reader.read(level, m_info.levels[level].blockArea(column, row), stop);
    const bool isStopped = block.isNull() && stop && stop();
    if (block.isNull() && !isStopped) {
        fault = complaints.text().isEmpty()
                    ? QCoreApplication::translate("Raster", "not enough memory for its pixels")
                    : complaints.text();
    }
    return block;
}

} // namespace lum
