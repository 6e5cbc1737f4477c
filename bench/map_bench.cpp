#include "bench/Limits.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "tests/lum_desktop_sdkx/TestHost.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>
#include <vector>

// Measures a frame in which the map's last picture is moved or stretched. It must be so short that
// panning is smooth, however many points the layers hold.

namespace {

constexpr double kLimitMs = 4; // a quarter of a frame of 60 a second
constexpr QSize kScreen(1920, 1080);
constexpr int kColumns = 1000;
constexpr int kRows = 1000;

/// A layer of a million points, 25 m apart.
class MillionPoints final : public ILayerViewer
{
public:
    MillionPoints(const char* /*config*/, IDesktopHost* /*host*/)
    {
        m_points.reserve(std::size_t(kColumns) * kRows);
        for (int row = 0; row < kRows; ++row) {
            for (int column = 0; column < kColumns; ++column)
                m_points.emplace_back(column * 25.0, row * 25.0);
        }
    }
    [[nodiscard]] std::string GetName() const override { return "MillionPoints"; }
    [[nodiscard]] QRectF GetExtent() const override
    {
        return {0, 0, kColumns * 25.0, kRows * 25.0};
    }
    void SetTransform(const Transform* /*transform*/) override {}
    void Paint(const PaintTarget& target, const QRectF& view, QPainter& painter) override
    {
        painter.setPen(Qt::darkBlue);
        for (const QPointF& point : m_points) {
            if (target.isCancelled())
                return;
            if (view.contains(point))
                painter.drawEllipse(target.transform.SurveyToScreen(point), 2, 2);
        }
    }
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override { return true; }

private:
    std::vector<QPointF> m_points;
    basalt::Dictionary m_properties;
};

/// A map on the screen whose picture is complete.
std::unique_ptr<MapWindow> shownMap(TestHost& host, bool hasPoints)
{
    auto map = std::make_unique<MapWindow>("", &host);
    map->resize(kScreen);
    if (hasPoints)
        map->addLayer(QStringLiteral("MillionPoints"), basalt::Dictionary());
    map->show();
    map->zoomAll();
    while (!map->isUpToDate())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return map;
}

void report(benchmark::State& state, std::vector<double> framesMs, const char* name)
{
    std::sort(framesMs.begin(), framesMs.end());
    state.counters["p99_ms"] = framesMs[framesMs.size() * 99 / 100];
    bench::report(state, name, framesMs[framesMs.size() / 2], kLimitMs, "ms a frame");
}

/// Measures single frames: `change` the view, then the repaint of the widget.
template <class Change>
void runFrames(benchmark::State& state, MapWindow& map, const char* name, Change change)
{
    std::vector<double> framesMs;
    for (auto _ : state) {
        QElapsedTimer clock;
        clock.start();
        change(static_cast<int>(framesMs.size()));
        map.repaint();
        framesMs.push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
        state.SetIterationTime(framesMs.back() / 1e3);
        QApplication::processEvents(); // here the map requests a paint on the worker
    }
    report(state, std::move(framesMs), name);
}

/// A hundred frames there, a hundred back, so that the picture stays in sight.
int direction(int frame)
{
    return frame % 200 < 100 ? 3 : -3;
}

void BM_MoveEmptyMap(benchmark::State& state)
{
    TestHost host;
    const auto map = shownMap(host, false);
    runFrames(state, *map, "move, empty map",
              [&](int frame) { map->pan(0, 0, direction(frame), 2 * direction(frame)); });
}

void BM_MoveMillionPoints(benchmark::State& state)
{
    TestHost host;
    const auto map = shownMap(host, true);
    runFrames(state, *map, "move, a million points in work",
              [&](int frame) { map->pan(0, 0, direction(frame), 2 * direction(frame)); });
}

void BM_ZoomMillionPoints(benchmark::State& state)
{
    TestHost host;
    const auto map = shownMap(host, true);
    runFrames(state, *map, "zoom, a million points in work",
              [&](int frame) { map->zoomAbout(960, 540, frame % 20 < 10 ? 1.02 : 1 / 1.02); });
}

/// For comparison: copying as many bytes as the screen has.
void BM_CopyScreen(benchmark::State& state)
{
    QImage from(kScreen, QImage::Format_RGB32);
    from.fill(Qt::white);
    QImage to(kScreen, QImage::Format_RGB32);
    while (state.KeepRunning()) {
        std::copy_n(from.constBits(), from.sizeInBytes(), to.bits());
        benchmark::DoNotOptimize(to.bits());
    }
}

BENCHMARK(BM_CopyScreen)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MoveEmptyMap)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(400);
BENCHMARK(BM_MoveMillionPoints)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(400);
BENCHMARK(BM_ZoomMillionPoints)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(400);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    registerMapComponents();
    using Layer = desktop::Maker<ILayerViewer, MillionPoints, IDesktopHost*>;
    extensible_factory_register_ILayerViewer("MillionPoints", "", Layer::create, Layer::destroy);
    return bench::run(argc, argv);
}
