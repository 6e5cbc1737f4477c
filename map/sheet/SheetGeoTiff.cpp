#include "map/sheet/SheetGeoTiff.h"

#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/files/FileAside.h"
#include "lum_sdk/raster/GdalFault.h"
#include "map/sheet/GridReference.h"
#include "map/sheet/MapSheet.h"
#include "map/sheet/SheetBands.h"
#include "map/sheet/SheetLayout.h"

#include <QCoreApplication>
#include <QImage>

#include <cpl_conv.h>
#include <cpl_string.h>
#include <gdal.h>
#include <ogr_srs_api.h>

#include <memory>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MapSheet)
};

struct CloseDataset
{
    void operator()(void* dataset) const { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<void, CloseDataset>;

struct ReleaseSystem
{
    void operator()(void* system) const { OSRRelease(system); }
};
using System = std::unique_ptr<void, ReleaseSystem>;

/// From dots to coordinates of the file's system, as GDAL counts them.
std::array<double, 6> transformOf(const MapSheet& sheet, const SheetLayout& layout,
                                  const GridReference& reference)
{
    const lum::PlaneAxes axes = lum::planeAxes(sheet.setup.system);
    const QPointF corner = layout.view.ScreenToSurvey(QPointF(0, 0));
    const double dot = layout.view.GetScale() / layout.ratio;
    const auto& to = reference.fromGrid;
    std::array<double, 6> transform{};
    for (std::size_t row : {0U, 3U}) {
        const double byX = to[row + 1] * axes.eastSign();
        const double byY = to[row + 2] * axes.northSign();
        transform[row] = to[row] + byX * corner.x() + byY * corner.y();
        transform[row + 1] = byX * dot;
        transform[row + 2] = -byY * dot;
    }
    return transform;
}

System systemOf(const GridReference& reference)
{
    System system(OSRNewSpatialReference(nullptr));
    if (reference.definition.empty() ||
        OSRSetFromUserInput(system.get(), reference.definition.c_str()) != OGRERR_NONE)
        return nullptr;
    OSRSetAxisMappingStrategy(system.get(), OAMS_TRADITIONAL_GIS_ORDER);
    return system;
}

Dataset create(const QByteArray& path, const QSize& size)
{
    CPLStringList options;
    for (const char* option : {"TILED=YES", "COMPRESS=DEFLATE", "PREDICTOR=2", "ZLEVEL=4",
                               "PHOTOMETRIC=RGB", "BIGTIFF=IF_SAFER", "NUM_THREADS=2"})
        options.AddString(option);
    return Dataset(GDALCreate(GDALGetDriverByName("GTiff"), path.constData(), size.width(),
                              size.height(), 3, GDT_Byte, options.List()));
}

bool writeBand(GDALDatasetH dataset, const QImage& band, int row)
{
    QImage colors = band.convertToFormat(QImage::Format_RGB888);
    return GDALDatasetRasterIOEx(dataset, GF_Write, 0, row, colors.width(), colors.height(),
                                 colors.bits(), colors.width(), colors.height(), GDT_Byte, 3,
                                 nullptr, 3, colors.bytesPerLine(), 1, nullptr) == CE_None;
}

/// Whether the file tells the projection that it was given: not every one has a form there.
bool hasKeptSystem(const QByteArray& path, OGRSpatialReferenceH system)
{
    const Dataset written(GDALOpen(path.constData(), GA_ReadOnly));
    const OGRSpatialReferenceH kept =
        written == nullptr ? nullptr : GDALGetSpatialRef(written.get());
    const auto projection = [](OGRSpatialReferenceH each) {
        const char* const name = OSRGetAttrValue(each, "PROJECTION", 0);
        return std::string(name != nullptr ? name : "");
    };
    return kept != nullptr && projection(kept) == projection(system);
}

/// What the file does not tell of the coordinate system.
/// \param system null when the project has none
QString systemNotice(const QByteArray& path, OGRSpatialReferenceH system)
{
    if (system == nullptr)
        return Texts::tr("The project has no coordinate system; the file has coordinates alone.");
    return hasKeptSystem(path, system)
               ? QString()
               : Texts::tr("The file has the map's place in its coordinates, but not the "
                           "coordinate system itself.");
}

void describe(GDALDatasetH dataset, const SheetSetup& setup)
{
    const auto set = [&](const char* key, const QByteArray& value) {
        GDALSetMetadataItem(dataset, key, value.constData(), nullptr);
    };
    set("TIFFTAG_IMAGEDESCRIPTION", setup.title.toUtf8());
    set("TIFFTAG_XRESOLUTION", QByteArray::number(setup.dpi));
    set("TIFFTAG_YRESOLUTION", QByteArray::number(setup.dpi));
    set("TIFFTAG_RESOLUTIONUNIT", "2"); // dots to an inch
}

} // namespace

GeoTiffResult writeGeoTiff(const MapSheet& sheet, const SheetLayout& layout, const QString& path,
                           SheetWatch& watch)
{
    if (GDALGetDriverCount() == 0)
        GDALAllRegister();
    GeoTiffResult result;
    lum::FileAside aside(path);
    if (!aside.fault().isEmpty())
        return {aside.fault(), {}, false};
    const QByteArray name = aside.path().toUtf8();
    const GridReference reference = gridReference(sheet.setup.system);
    const System system = systemOf(reference);
    lum::GdalFault fault;
    CPLSetThreadLocalConfigOption("GDAL_PAM_ENABLED", "NO"); // no second file beside it
    Dataset dataset = create(name, layout.map.size());
    bool isWritten = dataset != nullptr;
    if (isWritten) {
        auto transform = transformOf(sheet, layout, reference);
        GDALSetGeoTransform(dataset.get(), transform.data());
        if (system != nullptr)
            GDALSetSpatialRef(dataset.get(), system.get());
        describe(dataset.get(), sheet.setup);
        isWritten = paintBands(sheet, layout, watch, [&](const QImage& band, int row) {
            return writeBand(dataset.get(), band, row);
        });
        dataset.reset(); // closing may tell what writing did not
    }
    if (isWritten && fault.text().isEmpty())
        result.notice = systemNotice(name, system.get());
    CPLSetThreadLocalConfigOption("GDAL_PAM_ENABLED", nullptr);
    if (watch.isCancelled)
        return result;
    result.fault = fault.text();
    if (!isWritten && result.fault.isEmpty())
        result.fault = Texts::tr("there is not enough memory");
    if (result.fault.isEmpty())
        result.fault = aside.commit();
    result.isDone = result.fault.isEmpty();
    return result;
}
