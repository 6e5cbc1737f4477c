#include "basalt_utilities/Dictionary.h"
#include "bench/Limits.h"
#include "exchange/ShownTimes.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/DictionaryXml.h"
#include "quality/EmptyPointCheck.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/QualityCheck.h"
#include "quality/ResurveyCheck.h"
#include "reports/daily/DailyReport.h"
#include "reports/ReportInput.h"
#include "samples/DemoLimits.h"
#include "samples/DemoSurvey.h"
#include "samples/ResultCompleter.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdlib>

// The daily report of the demo survey, with all of its problems.

namespace {

constexpr double kReportS = 2;

void BM_DailyReport(benchmark::State& state)
{
    ICoordTransform& transform = get_project_coord_transform();
    basalt::Dictionary limits;
    if (!demo::useSurveySystem(transform).isEmpty() ||
        !xml_to_dictionary(QUALITY_PARAMETERS, limits))
        std::abort();
    for (const demo::DemoLimit& limit : demo::demoLimits())
        limits.set(limit.key, limit.value);
    demo::DemoSurvey demo = demo::makeDemoSurvey(1, transform);
    ProgressReporter progress(nullptr);
    const auto problems = [&] {
        checkQuality(demo.survey, limits, progress);
        checkEmptyPoints(demo.design, demo.survey, progress);
        checkResurveys(demo.survey, limits, progress);
        return findProblems({demo.design, demo.survey, limits, 1, shownTimes()}, progress);
    };
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("daily.pdf"));
    const ReportChoice choice;
    const ReportInput input{demo.design,
                            demo.survey,
                            limits,
                            transform.parameters(),
                            QStringLiteral("demo"),
                            QStringLiteral("demo.kelx"),
                            QStringLiteral("Skyquill"),
                            choice,
                            progress,
                            problems};
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        bench::report(state, "daily report of the demo survey", bench::medianOf([&] {
                          return bench::secondsOf([&] {
                              if (!writeDailyReport(path, input).isDone())
                                  std::abort();
                          });
                      }),
                      kReportS, "s");
    }
}

BENCHMARK(BM_DailyReport)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
