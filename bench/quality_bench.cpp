#include "app/ProgressStatusBarForSkyquill.h"
#include "basalt_utilities/Dictionary.h"
#include "bench/Limits.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "quality/EmptyPointCheck.h"
#include "quality/EmptyPointResultModel.h"
#include "quality/QualityCheck.h"
#include "quality/QualityResultModel.h"
#include "quality/RepeatPoints.h"
#include "quality/RepeatResultModel.h"
#include "quality/ResurveyCheck.h"
#include "quality/ResurveyResultModel.h"
#include "quality/ui/DlgEmptyPtResult.h"
#include "quality/ui/DlgQCResult.h"
#include "quality/ui/DlgRepeatPtCheck.h"
#include "quality/ui/DlgResurveyCheckResult.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>
#include <QThread>

#include <memory>

// The checks of 200,000 results and 1,000,000 design points while the real progress bar listens,
// against reporting the same steps alone (writing the payload and publishing it), and their lists
// of half a million rows.

namespace {

constexpr int kLines = 400;
constexpr int kPointsALine = 500;
constexpr int kDesignLines = 1000;
constexpr int kDesignPointsALine = 1000;
constexpr int kListRows = 500000;
constexpr double kListSeconds = 2;
constexpr int kRuns = 25; // a run takes some milliseconds, so that single runs differ much

/// Results of which every twentieth is a resurvey, and every twentieth a repeat.
SurveyPoints makePoints()
{
    SurveyPoints points;
    for (int line = 0; line < kLines; ++line) {
        for (int place = 0; place < kPointsALine; ++place) {
            SurveyPoint point;
            point.lineNumber = std::to_string(1000 + line);
            const std::string number = point.lineNumber + std::to_string(5000 + place / 20 * 20);
            const std::string own = point.lineNumber + std::to_string(5000 + place);
            point.pointNumber = place % 20 == 1   ? number + "F"
                                : place % 20 == 2 ? "C" + number + "_0"
                                                  : own;
            point.pdop = 1 + place % 4;
            point.satelliteNumber = place % 20;
            points.set(point);
        }
    }
    return points;
}

DesignPoints makeDesign()
{
    DesignPoints points;
    for (int line = 0; line < kDesignLines; ++line) {
        for (int place = 0; place < kDesignPointsALine; ++place) {
            DesignPoint point;
            point.lineNumber = std::to_string(1000 + line);
            point.pointNumber = point.lineNumber + std::to_string(5000 + place);
            points.set(point);
        }
    }
    return points;
}

/// A window with the progress bar, which listens to the host's events.
struct Desk
{
    Desk()
    {
        auto bar = std::make_unique<ProgressStatusBarForSkyquill>("", &host);
        window.statusBar()->addPermanentWidget(bar.release()); // the window's own from here on
        window.resize(1280, 800);
        window.show();
        QCoreApplication::processEvents();
    }

    DesktopHost host;
    QMainWindow window;
};

/// The time of a job. The progress bar rests before it, so that the job's first report is shown and
/// painted at once.
template <class Job>
double secondsAfterAPause(Job job)
{
    QThread::msleep(40);
    return bench::secondsOf(job);
}

/// The median of what `job` takes against `floor`; both get a reporter.
template <class Job, class Floor>
double ratioOf(Desk& desk, Job job, Floor floor)
{
    const auto timed = [&](auto& work) {
        return secondsAfterAPause([&] {
            ProgressReporter progress(&desk.host.eventManager());
            work(progress);
        });
    };
    return bench::medianOf([&] { return timed(job) / timed(floor); }, kRuns);
}

/// Every step of a check over the results.
void reportAlone(const SurveyPoints& points, ProgressReporter& progress, const char* caption)
{
    for (const auto& [number, line] : points) {
        ProgressSteps steps(progress, caption + number, line.size());
        for (std::size_t done = 0; done < line.size(); ++done)
            steps.next();
    }
    progress.hide();
}

void BM_QualityCheck(benchmark::State& state)
{
    SurveyPoints points = makePoints();
    const basalt::Dictionary parameters;
    Desk desk;
    for (auto _ : state) {
        const double ratio = ratioOf(
            desk, [&](auto& progress) { checkQuality(points, parameters, progress); },
            [&](auto& progress) { reportAlone(points, progress, "Check Survey Line:"); });
        bench::report(state, "quality check of 200,000 results / its progress alone", ratio, 1.5);
    }
}

void BM_ResurveyCheck(benchmark::State& state)
{
    SurveyPoints points = makePoints();
    const basalt::Dictionary parameters;
    Desk desk;
    for (auto _ : state) {
        const double ratio = ratioOf(
            desk, [&](auto& progress) { checkResurveys(points, parameters, progress); },
            [&](auto& progress) { reportAlone(points, progress, "Resurvey Check Survey Line:"); });
        bench::report(state, "resurvey check of 200,000 results / its progress alone", ratio, 1.5);
    }
}

/// How many numbers stand in both lines, by a plain merge.
std::size_t mergeWalk(const DesignPoints::Line& design, const SurveyPoints::Line& results)
{
    std::size_t both = 0;
    auto result = results.begin();
    for (const DesignPoint& point : design) {
        while (result != results.end() && result->pointNumber < point.pointNumber)
            ++result;
        both += result != results.end() && result->pointNumber == point.pointNumber ? 1U : 0U;
    }
    return both;
}

void BM_EmptyPointCheck(benchmark::State& state)
{
    const SurveyPoints survey = makePoints();
    DesignPoints design = makeDesign();
    const SurveyPoints::Line none;
    Desk desk;
    const auto walk = [&](ProgressReporter& progress) {
        ProgressSteps steps(progress, "Empty Check", design.lineCount());
        for (const auto& [number, line] : design) {
            const auto* const results = survey.findLine(number);
            benchmark::DoNotOptimize(mergeWalk(line, results != nullptr ? *results : none));
            steps.next();
        }
        progress.hide();
    };
    for (auto _ : state) {
        const double ratio = ratioOf(
            desk, [&](auto& progress) { checkEmptyPoints(design, survey, progress); }, walk);
        bench::report(state, "empty check of 1,000,000 points / merge walk and progress", ratio,
                      1.5);
    }
}

void BM_RepeatPoints(benchmark::State& state)
{
    const SurveyPoints points = makePoints();
    DesktopHost host;
    for (auto _ : state) {
        const double seconds = bench::medianOf([&] {
            return bench::secondsOf([&] {
                benchmark::DoNotOptimize(makeRepeatResultModel(findRepeatPoints(points).rows));
            });
        });
        bench::report(state, "repeats of 200,000 results listed", seconds * 1000, 100, "ms");
    }
}

/// Opens and paints a list of half a million rows.
template <class List, class Row>
void measureList(benchmark::State& state, const char* what, const Row& row,
                 std::unique_ptr<QAbstractTableModel> (*model)(std::vector<Row> rows))
{
    DesktopHost host;
    for (auto _ : state) {
        const double seconds = bench::medianOf([&] {
            std::vector<Row> rows(kListRows, row);
            return bench::secondsOf([&] {
                List list(host, {model(std::move(rows)), {}});
                list.setAttribute(Qt::WA_DeleteOnClose, false);
                list.show();
                QCoreApplication::processEvents();
                list.grab();
            });
        });
        bench::report(state, what, seconds, kListSeconds, "s");
    }
}

void BM_QualityList(benchmark::State& state)
{
    measureList<DlgQCResult>(state, "list of 500,000 faults, opened and painted",
                             QualityRow{"10015001", "1001", "HRMS Out-range.", 1, 0.5},
                             makeQualityResultModel);
}

void BM_EmptyPointList(benchmark::State& state)
{
    measureList<DlgEmptyPtResult>(state, "list of 500,000 empty points, opened and painted",
                                  DesignPoint{"1001", "10015001", 4e6, 5e5, 30, 45, 1, 0},
                                  makeEmptyPointResultModel);
}

void BM_ResurveyList(benchmark::State& state)
{
    ResurveyRow row;
    row.pointNumber = "10015001";
    row.lineNumber = "1001";
    row.description = "Resurvey Coord Out-range.";
    measureList<DlgResurveyCheckResult>(state, "list of 500,000 resurveys, opened and painted", row,
                                        makeResurveyResultModel);
}

void BM_RepeatList(benchmark::State& state)
{
    measureList<DlgRepeatPtCheck>(state, "list of 500,000 repeats, opened and painted",
                                  RepeatRow{"C10015001_0", "1001", true, 4e6, 5e5, 30},
                                  makeRepeatResultModel);
}

BENCHMARK(BM_QualityCheck)->Iterations(1);
BENCHMARK(BM_ResurveyCheck)->Iterations(1);
BENCHMARK(BM_EmptyPointCheck)->Iterations(1);
BENCHMARK(BM_RepeatPoints)->Iterations(1);
BENCHMARK(BM_QualityList)->Iterations(1);
BENCHMARK(BM_EmptyPointList)->Iterations(1);
BENCHMARK(BM_ResurveyList)->Iterations(1);
BENCHMARK(BM_RepeatList)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
