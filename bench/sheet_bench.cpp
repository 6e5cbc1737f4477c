#include "bench/Limits.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/MapSheet.h"
#include "map/sheet/SheetFile.h"
#include "quality/colors/ResultColors.h"
#include "tests/map/TestSurvey.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <cmath>

// 200,000 results in two colours on A0 at 300 dots to an inch, with names where there is room and
// lines to the base stations, as a PDF file.

namespace {

/// 50 km by 10 km, a base station each 10 km, 3 m from the design.
SurveyPoints makeSurvey()
{
    constexpr double kReach = 10000;
    const SurveyPoints results = TestSurvey().results(500, 400, 1, 3);
    SurveyPoints points;
    for (const auto& [number, line] : results) {
        for (SurveyPoint point : line) {
            point.referenceNorth = (std::floor(point.north / kReach) + 0.5) * kReach;
            point.referenceEast = (std::floor(point.east / kReach) + 0.5) * kReach;
            points.set(std::move(point));
        }
    }
    return points;
}

MapSheet makeSheet()
{
    const basalt::Dictionary system;
    const SurveyPoints points = makeSurvey();
    const ResultColors colors(
        QStringLiteral("Kind"),
        {{QStringLiteral("one"), 0xff0072b2}, {QStringLiteral("other"), 0xffd55e00}},
        [](const SurveyPoint& point) { return std::uint8_t(point.pointNumber.back() % 2); });
    SurveyPictureOptions options;
    options.names = SurveyPictureOptions::Names::WithRoom;
    MapSheet sheet;
    sheet.ground = std::make_shared<MapGround>(system);
    sheet.drawing = drawingOf(points, colors, toMapOf(system), options);
    nameSheet(sheet, QStringLiteral("Block"), system);
    sheet.setup.paper = *findPaper(QStringLiteral("A0"));
    return sheet;
}

void BM_LargestSheet(benchmark::State& state)
{
    const MapSheet sheet = makeSheet();
    const QTemporaryDir folder;
    SheetWatch watch;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const double seconds = bench::medianOf(
            [&] {
                return bench::secondsOf([&] {
                    if (!writeSheet(sheet, folder.filePath(QStringLiteral("map.pdf")), watch)
                             .isDone())
                        state.SkipWithError("the sheet is not written");
                });
            },
            3);
        bench::report(state, "200,000 results on A0 as PDF", seconds, 10, "s");
    }
}

BENCHMARK(BM_LargestSheet)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return bench::run(argc, argv);
}
