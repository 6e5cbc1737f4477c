#include "app/ProgressStatusBarForSkyquill.h"
#include "basalt_utilities/Dictionary.h"
#include "bench/Limits.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "quality/QualityCheck.h"
#include "quality/QualityResultModel.h"
#include "quality/ui/DlgQCResult.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>
#include <QThread>

#include <memory>

// The quality check of 200,000 results while the real progress bar listens, against reporting the
// same steps alone (writing the payload and publishing it); and the list of half a million faults.

namespace {

constexpr int kLines = 400;
constexpr int kPointsALine = 500;
constexpr int kListRows = 500000;
constexpr double kListSeconds = 2;

SurveyPoints makePoints()
{
    SurveyPoints points;
    for (int line = 0; line < kLines; ++line) {
        for (int place = 0; place < kPointsALine; ++place) {
            SurveyPoint point;
            point.lineNumber = std::to_string(1000 + line);
            point.pointNumber = point.lineNumber + std::to_string(5000 + place);
            point.pdop = 1 + place % 4;
            point.satelliteNumber = place % 20;
            points.set(point);
        }
    }
    return points;
}

/// The time of a job. The progress bar rests before it, so that the job's first report is shown and
/// painted at once.
template <class Job>
double secondsAfterAPause(Job job)
{
    QThread::msleep(40);
    return bench::secondsOf(job);
}

void BM_QualityCheck(benchmark::State& state)
{
    SurveyPoints points = makePoints();
    const basalt::Dictionary parameters;
    DesktopHost host;
    QMainWindow window;
    auto bar = std::make_unique<ProgressStatusBarForSkyquill>("", &host);
    window.statusBar()->addPermanentWidget(bar.release()); // the window's own from here on
    window.resize(1280, 800);
    window.show();
    QCoreApplication::processEvents();
    const auto reportAlone = [&] {
        return secondsAfterAPause([&] {
            ProgressReporter progress(&host.eventManager());
            for (const auto& [number, line] : points) {
                ProgressSteps steps(progress, "Check Survey Line:" + number, line.size());
                for (std::size_t done = 0; done < line.size(); ++done)
                    steps.next();
            }
            progress.hide();
        });
    };
    const auto check = [&] {
        return secondsAfterAPause([&] {
            ProgressReporter progress(&host.eventManager());
            checkQuality(points, parameters, progress);
        });
    };
    for (auto _ : state) {
        // A run takes some milliseconds, so that single runs differ much.
        const double ratio = bench::medianOf([&] { return check() / reportAlone(); }, 25);
        bench::report(state, "quality check of 200,000 results / its progress alone", ratio, 1.5);
    }
}

void BM_ResultList(benchmark::State& state)
{
    DesktopHost host;
    for (auto _ : state) {
        const double seconds = bench::medianOf([&] {
            std::vector<QualityRow> rows(kListRows,
                                         QualityRow{"10015001", "1001", "HRMS Out-range.", 1, 0.5});
            return bench::secondsOf([&] {
                DlgQCResult list(host, makeQualityResultModel(std::move(rows)));
                list.setAttribute(Qt::WA_DeleteOnClose, false);
                list.show();
                QCoreApplication::processEvents();
                list.grab();
            });
        });
        bench::report(state, "result list of 500,000 rows, opened and painted", seconds,
                      kListSeconds, "s");
    }
}

BENCHMARK(BM_QualityCheck)->Iterations(1);
BENCHMARK(BM_ResultList)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
