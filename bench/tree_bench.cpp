#include "bench/Limits.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "views/trees/DesignLineControl.h"
#include "views/trees/LineTreeView.h"
#include "views/trees/SurveyDataControl.h"

#include <QApplication>

#include <memory>

// Both trees rebuilt and painted after the events that announce a project: at a project's full
// size, and with ten times its lines of which every second one is selected.

namespace {

constexpr double kSeconds = 0.05;

struct Size
{
    int lines;
    int designALine;
    int resultsALine;
};

void fill(DataProcessDataManager& manager, const Size& size)
{
    manager.clear();
    for (int line = 0; line < size.lines; ++line) {
        DesignPoint design;
        design.lineNumber = std::to_string(10000 + line);
        design.type = line % 2;
        SurveyPoint result;
        result.lineNumber = design.lineNumber;
        for (int place = 0; place < size.designALine; ++place) {
            design.pointNumber = std::to_string(10000 + place);
            manager.designPoints().set(design);
            result.pointNumber = design.pointNumber;
            if (place < size.resultsALine)
                manager.surveyPoints().set(result);
        }
    }
}

double rebuild(DesktopHost& host)
{
    return bench::secondsOf([&] {
        host.eventManager().publish(events::kRefreshDesignLayer, nullptr, 0);
        host.eventManager().publish(events::kRefreshSurveyLayer, nullptr, 0);
        QCoreApplication::processEvents();
    });
}

void BM_Trees(benchmark::State& state)
{
    DesktopHost host;
    DataProcessDataManager manager(&host);
    get_system_status_dictionary().set(status::kProjectOpen, "1");
    DesignLineControl design("", &host);
    SurveyDataControl survey("", &host);
    for (QWidget* const tree : {design.widget(), survey.widget()}) {
        tree->resize(250, 600);
        tree->show();
    }
    for (auto _ : state) {
        fill(manager, {1000, 1000, 200});
        bench::report(state, "both trees, 1,000,000 + 200,000 points on 1,000 lines",
                      bench::medianOf([&] { return rebuild(host); }), kSeconds, "s");
        fill(manager, {10000, 10, 2});
        rebuild(host);
        QStringList everySecond;
        for (int line = 0; line < 10000; line += 2)
            everySecond << QString::number(10000 + line);
        survey.findChild<LineTreeView*>()->selectLines(everySecond);
        bench::report(state, "both trees, 10,000 lines, 5,000 of them selected",
                      bench::medianOf([&] { return rebuild(host); }), 5 * kSeconds, "s");
    }
}

BENCHMARK(BM_Trees)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
