#include "bench/Limits.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_sdk/events/PlatformEvents.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "views/tables/SurveyDataTable.h"

#include <QApplication>

// The window of 200,000 results: what a user waits for besides sorting and filtering.

namespace {

constexpr int kLines = 1000;
constexpr int kPerLine = 200;

SurveyPoint surveyPoint(int line, int place)
{
    SurveyPoint point;
    point.lineNumber = std::to_string(1000 + line);
    point.pointNumber = point.lineNumber + std::to_string(5000 + place);
    point.latitude = 39 + place / 1e6;
    point.longitude = 117 + line / 1e6;
    point.altitude = point.elevation = 650 + place / 7.0;
    point.north = point.designNorth = 4411000 + place * 12.5;
    point.east = point.designEast = 511000 + line * 25.0;
    point.rms = place / 977.0;
    point.startTime = point.endTime = 1700000000000 + line * 15500000LL + place * 120000LL;
    point.surveyor = "Zhang San";
    return point;
}

void BM_SurveyTable(benchmark::State& state)
{
    TestHost host;
    DataProcessDataManager manager(&host);
    get_system_status_dictionary().set(status::kProjectOpen, "1");
    for (int line = 0; line < kLines; ++line) {
        for (int place = 0; place < kPerLine; ++place)
            manager.surveyPoints().set(surveyPoint(line, place));
    }
    SurveyDataTable window("", &host);
    window.resize(1200, 600);
    window.show();
    host.events.publish("ON_SHOW_ALL_SURVEY_TABLE", nullptr, 0);
    QApplication::processEvents();
    auto& table = *window.findChild<CustomTableWidget*>();
    for (auto _ : state) {
        const double all = bench::medianOf([&] {
            host.events.publish("ON_CLEAR_SURVEY_TABLE", nullptr, 0);
            QApplication::processEvents();
            return bench::secondsOf([&] {
                host.events.publish("ON_SHOW_ALL_SURVEY_TABLE", nullptr, 0);
                QApplication::processEvents();
            });
        });
        bench::report(state, "all lines shown in the window and painted", all * 1000, 50, "ms");
        int last = 0;
        const double select = bench::medianOf([&] {
            last = (last + 137) % kLines;
            const QString line = QString::number(1000 + last);
            return bench::secondsOf(
                [&] { window.selectPoint(line, line + QStringLiteral("5100")); });
        });
        bench::report(state, "a result selected by name in its window", select * 1000, 1, "ms");
        const auto arrange = [&] {
            return bench::medianOf(
                [&] { return bench::secondsOf([&] { table.model()->sort(-1); }); });
        };
        const double plain = arrange();
        get_system_ini_parameter().dictionary().set(settings::kResultColors, "surveyor");
        host.events.publish(events::kUpdateSystemStatus, nullptr, 0);
        bench::report(state, "200,000 coloured rows arranged, of plain ones", arrange() / plain,
                      1.5, "");
        table.selectAll();
        const double copy =
            bench::medianOf([&] { return bench::secondsOf([&] { table.copySelection(); }); }, 3);
        bench::report(state, "200,000 rows of 43 columns copied", copy, 2, "s");
    }
}
BENCHMARK(BM_SurveyTable)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
