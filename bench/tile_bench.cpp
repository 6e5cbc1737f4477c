#include "bench/Limits.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/raster/RasterView.h"
#include "lum_sdk/raster/TileImage.h"
#include "tests/support/HttpTestServer.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <chrono>

// A base map in a window of 1920 x 1080 pixels, from a service that takes its time for each tile.
// Beside the time for all tiles stands what two connections that never pause would need; beside a
// paint that has only half of its tiles, one that has them all.

namespace {

constexpr std::chrono::milliseconds kServiceTakes(30);

lum::RasterView view()
{
    lum::RasterView view;
    view.transform.setSize({1920, 1080});
    view.transform.setView({500000, 4427757}, 12);
    (void)fillFromEpsg("32650", view.system);
    return view;
}

struct Service
{
    Service()
    {
        server.waitBeforeAnswers(kServiceTakes);
        map.name = QStringLiteral("Ground");
        map.address = server.address("/{z}/{x}/{y}.png");
        map.attribution = QStringLiteral("-");
    }

    HttpTestServer server;
    lum::BaseMap map;
};

double paintSeconds(lum::TileImage& image, const lum::RasterView& view)
{
    QImage picture(view.pixels(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    return bench::secondsOf([&] { image.paint(view, painter); });
}

void BM_FetchesAView(benchmark::State& state)
{
    Service service;
    for (auto _ : state) {
        const double ratio = bench::medianOf(
            [&] {
                const QTemporaryDir cache;
                const std::size_t before = service.server.requests().size();
                lum::TileImage image(service.map, {QStringLiteral("bench"), cache.path()});
                const double seconds =
                    bench::secondsOf([&] { image.fetchAll(view(), std::chrono::seconds(60)); });
                const auto tiles = double(service.server.requests().size() - before);
                const double ideal =
                    tiles / 2 * std::chrono::duration<double>(kServiceTakes).count();
                std::printf("%.0f tiles in %.2f s\n", tiles, seconds);
                return seconds / ideal;
            },
            3);
        bench::report(state, "a view's tiles, of two connections that never pause", ratio, 2);
    }
}

void BM_PaintsWhileTilesArrive(benchmark::State& state)
{
    Service service;
    for (auto _ : state) {
        lum::TileImage image(service.map, {QStringLiteral("bench"), {}});
        image.fetchAll(view(), std::chrono::seconds(60));
        const double whole = bench::medianOf([&] { return paintSeconds(image, view()); });
        lum::RasterView next = view();
        next.transform.panBy({960, 0});
        const double half = bench::medianOf([&] { return paintSeconds(image, next); });
        image.rest();
        std::printf("whole %.1f ms, half %.1f ms\n", whole * 1000, half * 1000);
        bench::report(state, "a paint while tiles arrive, of one that has them all", half / whole,
                      1.5);
    }
}

BENCHMARK(BM_FetchesAView)->Iterations(1);
BENCHMARK(BM_PaintsWhileTilesArrive)->Iterations(1);

} // namespace

int main(int argc, char** argv)
{
    return bench::run(argc, argv);
}
