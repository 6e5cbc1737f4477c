#include "basalt_utilities/KeyList.h"
#include "bench/Limits.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_desktop_sdkx/RasterTarget.h"
#include "lum_desktop_sdkx/Registration.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/raster/RasterImage.h"
#include "tests/lum_desktop_sdkx/TestHost.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <gdal.h>
#include <ogr_srs_api.h>

#include <algorithm>
#include <thread>
#include <vector>

// Measures pictures of a large GeoTIFF beside GDAL's own read of the same pixels into the same
// size, each from a file that was just opened, whose content the system has in memory.

namespace {

constexpr int kSide = 16000; // pixels of 1 m
constexpr QSize kScreen(1920, 1080);
constexpr int kRounds = 15;
constexpr double kWest = 480000;
constexpr double kNorth = 4408000;

/// Ends the run when something that every measurement needs went wrong.
void expect(bool isGood)
{
    if (!isGood)
        std::abort();
}

basalt::Dictionary systemOf(const char* epsg)
{
    basalt::Dictionary system;
    expect(fillFromEpsg(epsg, system).empty());
    return system;
}

/// RGB, deflated tiles with external overviews, in UTM zone 50N.
class LargeRaster
{
public:
    LargeRaster() : m_path(m_folder.filePath(QStringLiteral("large.tif")))
    {
        GDALAllRegister();
        const QByteArray name = QFile::encodeName(m_path);
        const char* options[] = {"TILED=YES", "COMPRESS=DEFLATE", "ZLEVEL=1", nullptr};
        GDALDatasetH file = GDALCreate(GDALGetDriverByName("GTiff"), name, kSide, kSide, 3,
                                       GDT_Byte, const_cast<char**>(options)); // NOLINT
        double place[] = {kWest, 1, 0, kNorth, 0, -1};
        GDALSetGeoTransform(file, place);
        const OGRSpatialReferenceH system = OSRNewSpatialReference(nullptr);
        OSRImportFromEPSG(system, 32650);
        GDALSetSpatialRef(file, system);
        OSRDestroySpatialReference(system);
        writeTo(file);
        GDALClose(file);
        file = GDALOpen(name, GA_ReadOnly); // so that the overviews lie in a file of their own
        int factors[] = {2, 4, 8, 16, 32};
        expect(GDALBuildOverviews(file, "AVERAGE", 5, factors, 0, nullptr, nullptr, nullptr) ==
               CE_None);
        GDALClose(file);
    }

    [[nodiscard]] const QString& path() const { return m_path; }

    [[nodiscard]] static const LargeRaster& instance()
    {
        static const LargeRaster raster;
        return raster;
    }

private:
    static void writeTo(GDALDatasetH file)
    {
        constexpr int kLines = 256;
        std::vector<uchar> lines(std::size_t(kSide) * kLines * 3);
        quint32 noise = 1;
        for (int top = 0; top < kSide; top += kLines) {
            for (std::size_t i = 0; i < lines.size(); ++i) {
                noise = noise * 1664525U + 1013904223U;
                lines[i] = static_cast<uchar>((i / 3 % kSide) / 128 + (noise >> 27U));
            }
            const int count = std::min(kLines, kSide - top);
            expect(GDALDatasetRasterIO(file, GF_Write, 0, top, kSide, count, lines.data(), kSide,
                                       count, GDT_Byte, 3, nullptr, 3, 3 * kSide, 1) == CE_None);
        }
    }

    QTemporaryDir m_folder;
    QString m_path;
};

struct Case
{
    const char* name;
    bool isWhole;
    const char* project; ///< EPSG
    double limit;
};

/// GDAL's own read of what the screen shows, in seconds.
double readByGdal(const Case& what)
{
    GDALDatasetH file =
        GDALOpen(QFile::encodeName(LargeRaster::instance().path()).constData(), GA_ReadOnly);
    GDALRasterIOExtraArg extra;
    INIT_RASTERIO_EXTRA_ARG(extra);
    extra.eResampleAlg = what.isWhole ? GRIORA_Bilinear : GRIORA_NearestNeighbour;
    const QSize size = what.isWhole ? QSize(1080, 1080) : kScreen;
    const QSize from = what.isWhole ? QSize(kSide, kSide) : kScreen;
    std::vector<uchar> pixels(std::size_t(size.width()) * std::size_t(size.height()) * 4);
    const double seconds = bench::secondsOf([&] {
        expect(GDALDatasetRasterIOEx(file, GF_Read, (kSide - from.width()) / 2,
                                     (kSide - from.height()) / 2, from.width(), from.height(),
                                     pixels.data(), size.width(), size.height(), GDT_Byte, 3,
                                     nullptr, 4, 4LL * size.width(), 1, &extra) == CE_None);
    });
    GDALClose(file);
    return seconds;
}

/// The same by us, from the opened file to the finished picture.
double paint(const Case& what)
{
    lum::RasterImage image(LargeRaster::instance().path());
    lum::RasterView view;
    view.system = systemOf(what.project);
    view.transform.setSize(kScreen);
    const QRectF extent = image.extent(view.system);
    QImage picture(kScreen, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    view.transform.setView(extent.center() + QPointF(1e6, 0), 1);
    image.paint(view, painter); // out of sight: sets up the transformation only
    if (what.isWhole)
        view.transform.fit(extent, 0);
    else
        view.transform.setView(extent.center(), 1);
    return bench::secondsOf([&] { image.paint(view, painter); });
}

double middleOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void BM_Paint(benchmark::State& state, const Case& what)
{
    for (auto _ : state) {
        std::vector<double> ours;
        std::vector<double> gdal;
        std::vector<double> ratios;
        for (int round = 0; round < kRounds;
             ++round) { // in turn: other work on the machine hits both
            ours.push_back(paint(what));
            gdal.push_back(readByGdal(what));
            ratios.push_back(ours.back() / gdal.back());
        }
        state.counters["ms"] = middleOf(ours) * 1e3;
        state.counters["gdal_ms"] = middleOf(gdal) * 1e3;
        state.SetIterationTime(middleOf(ours));
        bench::report(state, what.name, middleOf(ratios), what.limit, "of GDAL's own read");
    }
}

constexpr Case kWhole{"whole raster of 16,000 x 16,000", true, "32650", 1.5};
constexpr Case kClose{"close", false, "32650", 1.5};
constexpr Case kWholeOther{"whole, in another coordinate system", true, "32651", 2.0};
constexpr Case kCloseOther{"close, in another coordinate system", false, "32651", 2.0};

BENCHMARK_CAPTURE(BM_Paint, whole, kWhole)->UseManualTime()->Iterations(1);
BENCHMARK_CAPTURE(BM_Paint, close, kClose)->UseManualTime()->Iterations(1);
BENCHMARK_CAPTURE(BM_Paint, wholeOther, kWholeOther)->UseManualTime()->Iterations(1);
BENCHMARK_CAPTURE(BM_Paint, closeOther, kCloseOther)->UseManualTime()->Iterations(1);

/// What a source that gives a block every 20 ms looks like to the map.
class SlowBlocks final : public lum::IRasterBlocks
{
public:
    explicit SlowBlocks(const lum::RasterView& view) : m_view(view) {}
    QImage block(const lum::RasterBlockId& /*id*/) override
    {
        if (m_view.isLate())
            return {};
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        QImage block(256, 256, QImage::Format_RGB32);
        block.fill(Qt::gray);
        return block;
    }
    QImage substitute(const lum::RasterBlockId& /*id*/) override { return {}; }

private:
    const lum::RasterView& m_view;
};

/// A layer with the large raster; with "slow=1" its blocks come slowly.
class RasterLayer final : public ILayerViewer
{
public:
    RasterLayer(const char* config, IDesktopHost* /*host*/)
        : m_image(LargeRaster::instance().path())
    {
        csa_to_dictionary(m_properties, config);
    }
    [[nodiscard]] std::string GetName() const override { return "RasterLayer"; }
    [[nodiscard]] QRectF GetExtent() const override
    {
        return m_image.extent(get_project_coord_transform().parameters());
    }
    void SetTransform(const Transform* /*transform*/) override {}
    void Paint(const PaintTarget& target, const QRectF& /*view*/, QPainter& painter) override
    {
        const lum::RasterView view = rasterViewOf(target);
        if (m_properties.integer("slow") == 0) {
            if (!m_image.paint(view, painter))
                target.leaveRest();
            return;
        }
        SlowBlocks blocks(view);
        const lum::RasterPlace place(m_image.info(), view.system);
        if (paintRaster(view, place, blocks, painter) == lum::RasterPainted::SomeMissing)
            target.leaveRest();
    }
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override { return true; }

private:
    lum::RasterImage m_image;
    basalt::Dictionary m_properties;
};

std::unique_ptr<MapWindow> shownMap(TestHost& host, const char* properties)
{
    auto map = std::make_unique<MapWindow>("", &host);
    map->resize(kScreen);
    basalt::Dictionary values;
    csa_to_dictionary(values, properties);
    map->addLayer(QStringLiteral("RasterLayer"), values);
    map->show();
    map->zoomAll();
    return map;
}

void BM_MovePicture(benchmark::State& state)
{
    TestHost host;
    const auto map = shownMap(host, "layer_name=large");
    while (!map->isUpToDate())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::vector<double> framesMs;
    for (auto _ : state) {
        const double seconds = bench::secondsOf([&] {
            map->pan(0, 0, framesMs.size() % 200 < 100 ? 3 : -3, 2);
            map->repaint();
        });
        framesMs.push_back(seconds * 1e3);
        state.SetIterationTime(seconds);
        QApplication::processEvents();
    }
    std::sort(framesMs.begin(), framesMs.end());
    bench::report(state, "moving the picture of a large raster", framesMs[framesMs.size() / 2], 4,
                  "ms a frame");
}

/// From an input event to the frame that shows it, while the worker waits for slow blocks.
void BM_InputBesideSlowBlocks(benchmark::State& state)
{
    TestHost host;
    const auto map = shownMap(host, "layer_name=large,slow=1");
    std::vector<double> answersMs;
    for (auto _ : state) {
        const QPointF place(960, 540);
        QWheelEvent turn(place, map->mapToGlobal(place.toPoint()), QPoint(),
                         QPoint(0, answersMs.size() % 2 == 0 ? 120 : -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        const double seconds = bench::secondsOf([&] {
            QApplication::sendEvent(map.get(), &turn);
            QApplication::processEvents();
            map->repaint();
        });
        answersMs.push_back(seconds * 1e3);
        state.SetIterationTime(seconds);
        QElapsedTimer pause;
        pause.start();
        while (pause.elapsed() < 15)
            QApplication::processEvents();
    }
    bench::report(state, "input beside blocks that come slowly",
                  *std::max_element(answersMs.begin(), answersMs.end()), 50, "ms at most");
}

BENCHMARK(BM_MovePicture)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(400);
BENCHMARK(BM_InputBesideSlowBlocks)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(100);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    registerMapComponents();
    desktop::registration::layer<RasterLayer>("RasterLayer", "");
    const basalt::Dictionary system = systemOf("32650");
    get_project_coord_transform().initialise(system, system);
    return bench::run(argc, argv);
}
