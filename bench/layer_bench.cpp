#include "bench/Limits.h"
#include "lum_sdk/raster/Halo.h"
#include "map/BaseStations.h"
#include "map/DesignMarks.h"
#include "map/DesignPicture.h"
#include "map/PictureFrame.h"
#include "map/SurveyMarks.h"
#include "map/SurveyPicture.h"
#include "quality/colors/Colorings.h"
#include "quality/colors/ColorPalette.h"
#include "tests/map/PlainPictures.h"
#include "tests/map/TestSurvey.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <string>
#include <vector>

// Measures the pictures of the map's data against the same pictures drawn by plain calls, and the
// view of a part of the data against a project that has only this part. Measures picking and the
// making of the caches; and the survey in colours against the plain one.

namespace {

constexpr QSize kScreen(1920, 1080);
constexpr int kDesignLines = 1000;
constexpr int kDesignPoints = 1000; // of each line
constexpr int kSurveyLines = 400;
constexpr int kSurveyPoints = 500; // of each line
const ToMap kToMap = [](double north, double east) { return QPointF(east, north); };

const DesignPoints& design()
{
    static const DesignPoints kAll =
        TestSurvey().design(kDesignLines, kDesignPoints, kDesignLines / 2);
    return kAll;
}

const DesignMarks& designMarks()
{
    static const DesignMarks kAll(design(), kToMap);
    return kAll;
}

const SurveyPoints& survey()
{
    static const SurveyPoints kAll = TestSurvey().results(kSurveyLines, kSurveyPoints, 5, 0.4);
    return kAll;
}

/// A screen that shows the middle of `lines` lines of `points` points, `share` of their extent.
PictureFrame frameOf(int lines, int points, double share)
{
    const TestSurvey grid;
    const QRectF all(grid.east, grid.north, points * grid.pointStepM, lines * grid.lineStepM);
    PictureFrame frame;
    frame.transform.setSize(kScreen);
    frame.transform.fit(all, 0.05);
    frame.transform.setView(all.center(), frame.transform.GetScale() * share);
    frame.drawingArea = QRectF(QPointF(0, 0), kScreen);
    return frame;
}

template <class Paint>
double msOfPicture(const Paint& paint)
{
    QImage picture(kScreen, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    return 1e3 * bench::secondsOf([&] { paint(painter); });
}

/// Only the marks that a view shows.
DesignMarks visibleMarks(const PictureFrame& frame)
{
    const QRectF area = frame.mapArea(150);
    DesignPoints points;
    for (const auto& [number, line] : design()) {
        for (const DesignPoint& point : line) {
            if (area.contains(point.east, point.north))
                points.set(point);
        }
    }
    return {points, kToMap};
}

double msOfDesign(const DesignMarks& marks, const PictureFrame& frame)
{
    return bench::medianOf([&] {
        return msOfPicture([&](QPainter& painter) { paintDesign(marks, frame, {25}, painter); });
    });
}

void BM_DesignWhole(benchmark::State& state)
{
    const PictureFrame frame = frameOf(kDesignLines, kDesignPoints, 1);
    const double plainMs = bench::medianOf([&] {
        return msOfPicture(
            [&](QPainter& painter) { paintDesignPlainly(design(), frame, {25}, painter); });
    });
    for (auto _ : state)
        bench::report(state, "design of 1,000,000 points, whole, of plain calls",
                      msOfDesign(designMarks(), frame) / plainMs, 0.5, "");
}

/// The view of a part of a large design may take twice the time of a design with only this part.
void designPart(benchmark::State& state, double share, const char* name)
{
    const PictureFrame frame = frameOf(kDesignLines, kDesignPoints, share);
    const DesignMarks part = visibleMarks(frame);
    const double partMs = msOfDesign(part, frame);
    for (auto _ : state) {
        const double ms = msOfDesign(designMarks(), frame);
        state.counters["ms"] = ms;
        state.counters["points"] = static_cast<double>(part.table().size());
        bench::report(state, name, ms / partMs, 2, "");
    }
}

void BM_DesignTenth(benchmark::State& state)
{
    designPart(state, 0.1, "design, a tenth, of a project of that part");
}

void BM_DesignPoints(benchmark::State& state)
{
    designPart(state, 0.02, "design, points, of a project of that part");
}

void BM_DesignLabels(benchmark::State& state)
{
    designPart(state, 0.002, "design, labels, of a project of that part");
}

void surveyPart(benchmark::State& state, double share, const char* name)
{
    const PictureFrame frame = frameOf(kSurveyLines, kSurveyPoints, share);
    const SurveyMarks marks(survey(), kToMap);
    const double plainMs = bench::medianOf([&] {
        return msOfPicture(
            [&](QPainter& painter) { paintSurveyPlainly(survey(), frame, painter); });
    });
    for (auto _ : state) {
        const double ms = bench::medianOf([&] {
            return msOfPicture([&](QPainter& painter) {
                paintSurvey(marks, frame, QStringLiteral("Base"), painter);
            });
        });
        state.counters["ms"] = ms;
        state.counters["plain_ms"] = plainMs;
        bench::report(state, name, ms / plainMs, 0.5, "");
    }
}

void BM_SurveyWhole(benchmark::State& state)
{
    surveyPart(state, 1, "survey of 200,000 results, whole, of plain calls");
}

void BM_SurveyTenth(benchmark::State& state)
{
    surveyPart(state, 0.1, "survey, a tenth, of plain calls");
}

/// The time to make a picture of the map with an image under the data.
/// \param drawing memory for what gets a halo; null when there is no halo
template <class Paint>
double msOnImage(const Paint& paint, QImage* drawing)
{
    static const QImage ground = [] {
        QImage image(kScreen * 1.5, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        return image;
    }();
    return msOfPicture([&](QPainter& painter) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(QPointF(0, 0), kScreen), ground);
        if (drawing == nullptr) {
            paint(painter);
            return;
        }
        drawing->fill(Qt::transparent);
        QPainter drawer(drawing);
        paint(drawer);
        drawer.end();
        lum::drawWithHalo(*static_cast<QImage*>(painter.device()), *drawing, Qt::white);
    });
}

template <class Paint>
void reportHalo(benchmark::State& state, const char* name, const Paint& paint)
{
    QImage drawing(kScreen, QImage::Format_ARGB32_Premultiplied);
    const double plainMs = bench::medianOf([&] { return msOnImage(paint, nullptr); });
    const double ms = bench::medianOf([&] { return msOnImage(paint, &drawing); });
    state.counters["ms"] = ms;
    state.counters["plain_ms"] = plainMs;
    bench::report(state, name, ms / plainMs, 2, "");
}

void designWithHalo(benchmark::State& state, double share, const char* name)
{
    const PictureFrame frame = frameOf(kDesignLines, kDesignPoints, share);
    for (auto _ : state)
        reportHalo(state, name,
                   [&](QPainter& painter) { paintDesign(designMarks(), frame, {25}, painter); });
}

void BM_DesignTenthHalo(benchmark::State& state)
{
    designWithHalo(state, 0.1, "design, a tenth, with a halo, of none");
}

void BM_DesignPointsHalo(benchmark::State& state)
{
    designWithHalo(state, 0.02, "design, points, with a halo, of none");
}

void BM_DesignLabelsHalo(benchmark::State& state)
{
    designWithHalo(state, 0.002, "design, labels, with a halo, of none");
}

void BM_SurveyTenthHalo(benchmark::State& state)
{
    const PictureFrame frame = frameOf(kSurveyLines, kSurveyPoints, 0.1);
    const SurveyMarks marks(survey(), kToMap);
    for (auto _ : state)
        reportHalo(state, "survey, a tenth, with a halo, of none", [&](QPainter& painter) {
            paintSurvey(marks, frame, QStringLiteral("Base"), painter);
        });
}

/// 200,000 marks in seven colours.
SurveyMarks coloredMarks()
{
    MarkColors colors;
    colors.colors.assign(palette::kDistinct.begin(), palette::kDistinct.end());
    colors.classOf = [](const SurveyPoint& point) {
        return static_cast<std::uint8_t>(point.pointNumber.back() % 7);
    };
    return {survey(), kToMap, colors};
}

/// A picture in colours beside the plain one: with all names, as the plain one, and with those that
/// have room, as it is without a choice.
void coloredSurvey(benchmark::State& state, double share, const char* all, const char* withRoom)
{
    using Names = SurveyPictureOptions::Names;
    const PictureFrame frame = frameOf(kSurveyLines, kSurveyPoints, share);
    const SurveyMarks plain(survey(), kToMap);
    const SurveyMarks colored = coloredMarks();
    const auto msOf = [&](const SurveyMarks& marks, Names names) {
        return msOfPicture([&](QPainter& painter) {
            paintSurvey(marks, frame, QStringLiteral("Base"), painter, {true, true, names});
        });
    };
    const auto ratioOf = [&](Names names) { // one behind the other, since machines are noisy
        return bench::medianOf([&] { return msOf(colored, names) / msOf(plain, Names::All); });
    };
    for (auto _ : state) {
        bench::report(state, all, ratioOf(Names::All), 1.3, "");
        bench::report(state, withRoom, ratioOf(Names::WithRoom), 1.3, "");
    }
}

void BM_SurveyWholeColored(benchmark::State& state)
{
    coloredSurvey(state, 1, "survey in colours, whole, of plain",
                  "survey in colours, whole, names with room, of plain");
}

void BM_SurveyTenthColored(benchmark::State& state)
{
    coloredSurvey(state, 0.1, "survey in colours, a tenth, of plain",
                  "survey in colours, a tenth, names with room, of plain");
}

/// The cache of a survey with colours beside one without, for each way to colour.
void BM_RebuildColored(benchmark::State& state)
{
    SurveyPoints points = survey();
    int count = 0;
    for (auto&& [number, line] : points) {
        for (SurveyPoint& point : line) {
            point.surveyor = "surveyor " + std::to_string(++count / 500 % 30);
            point.dateTime = 1746000000000 + count * 20000LL;
            point.horizontalAccuracy = 0.005 + count % 40 * 0.001;
        }
    }
    const auto secondsOf = [&](const Coloring* coloring) {
        return bench::secondsOf([&] {
            const ResultColors colors =
                coloring == nullptr ? ResultColors()
                                    : resultColors(*coloring, {points, {}, basalt::LocalTimes(8)});
            benchmark::DoNotOptimize(
                SurveyMarks(points, kToMap, {colors.colors(), colors.classOf()}));
        });
    };
    for (auto _ : state) {
        for (const Coloring& coloring : colorings()) {
            const std::string name = std::string("survey cache by ") + coloring.name + ", of plain";
            const double ratio = // one behind the other, since machines are noisy
                bench::medianOf([&] { return secondsOf(&coloring) / secondsOf(nullptr); });
            bench::report(state, name.c_str(), ratio, 2, "");
        }
    }
}

/// The longest time that a paint goes on after it has been cancelled.
void BM_Cancel(benchmark::State& state)
{
    const SurveyMarks marks(survey(), kToMap);
    PictureFrame frame = frameOf(kSurveyLines, kSurveyPoints, 1);
    QElapsedTimer sinceAsked;
    double longestMs = 0;
    frame.isStopped = [&] {
        longestMs = std::max(longestMs, static_cast<double>(sinceAsked.nsecsElapsed()) / 1e6);
        sinceAsked.start();
        return false;
    };
    for (auto _ : state) {
        sinceAsked.start();
        msOfPicture(
            [&](QPainter& painter) { paintSurvey(marks, frame, QStringLiteral("Base"), painter); });
    }
    bench::report(state, "survey, from cancelling to the end of the paint", longestMs, 15, "ms");
}

/// Picks all over the design, beside points and between them.
void BM_Pick(benchmark::State& state)
{
    const MarkTable& marks = designMarks().table();
    std::vector<double> microseconds;
    int found = 0;
    for (auto _ : state) {
        const auto step = static_cast<double>(microseconds.size() % 997) / 997;
        const GridPlace place{4400000 + step * 100 * kDesignLines,
                              500000 + (1 - step) * 25 * kDesignPoints};
        const double seconds =
            bench::secondsOf([&] { found += marks.nearest(place, 500).has_value() ? 1 : 0; });
        microseconds.push_back(seconds * 1e6);
    }
    std::sort(microseconds.begin(), microseconds.end());
    state.counters["found"] = found;
    bench::report(state, "pick among 1,000,000 points, 99 of 100",
                  microseconds[microseconds.size() * 99 / 100] / 1e3, 1, "ms");
}

/// Base stations that all differ. Comparing each with all others would take minutes.
void BM_BaseStations(benchmark::State& state)
{
    for (auto _ : state) {
        const double seconds = bench::secondsOf([] {
            BaseStations stations;
            for (int i = 0; i < kSurveyLines * kSurveyPoints; ++i)
                stations.findOrAdd({i * 1.0, -5, 0, 0, 0});
            benchmark::DoNotOptimize(stations.list().size());
        });
        bench::report(state, "200,000 base stations", seconds * 1e3, 1000, "ms");
    }
}

void BM_Rebuild(benchmark::State& state)
{
    const double copyMs = bench::medianOf([] {
        return 1e3 * bench::secondsOf([] { benchmark::DoNotOptimize(DesignPoints(design())); });
    });
    for (auto _ : state) {
        const double ms = bench::medianOf([] {
            return 1e3 * bench::secondsOf(
                             [] { benchmark::DoNotOptimize(DesignMarks(design(), kToMap)); });
        });
        state.counters["ms"] = ms;
        state.counters["copy_ms"] = copyMs;
        bench::report(state, "design cache of 1,000,000 points, of a plain copy", ms / copyMs, 2,
                      "");
    }
}

BENCHMARK(BM_DesignWhole)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DesignTenth)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DesignPoints)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DesignLabels)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SurveyWhole)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SurveyTenth)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SurveyWholeColored)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SurveyTenthColored)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_RebuildColored)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DesignTenthHalo)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DesignPointsHalo)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DesignLabelsHalo)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SurveyTenthHalo)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Cancel)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Pick)->Iterations(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_BaseStations)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Rebuild)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return bench::run(argc, argv);
}
