#include "bench/Limits.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "views/AttributeControl.h"
#include "views/problems/ProblemTableModel.h"
#include "views/problems/ProblemWindow.h"
#include "views/SelectionFollower.h"
#include "views/tables/DesignLineTable.h"
#include "views/tables/SurveyDataTable.h"
#include "views/trees/DesignLineControl.h"
#include "views/trees/SurveyDataControl.h"

#include <QApplication>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

// The list of the problems of 1,000,000 design points and 200,000 results: 800,000 points without a
// result, and results with faults. A step to the next problem takes along map, tables, trees and
// attributes, until all that can be seen is painted.

namespace {

constexpr int kLines = 1000;
constexpr int kDesignALine = 1000;
constexpr int kSurveyALine = 200;
constexpr int kSteps = 300;

void fill(DataProcessDataManager& manager)
{
    for (int line = 0; line < kLines; ++line) {
        const std::string number = std::to_string(1000 + line);
        for (int place = 0; place < kDesignALine; ++place)
            manager.designPoints().set({number, number + std::to_string(5000 + place),
                                        4411000 + line * 50.0, 511000 + place * 25.0, 0, 90, 1, 0});
        for (int place = 0; place < kSurveyALine; ++place) {
            SurveyPoint point;
            point.lineNumber = number;
            point.pointNumber = number + std::to_string(5000 + place);
            point.north = point.designNorth = 4411000 + line * 50.0;
            point.east = point.designEast = 511000 + place * 25.0;
            point.antennaHeight = 2;
            point.pdop = place % 10 == 0 ? 9 : 1.5;
            point.hdop = point.vdop = 1;
            point.satelliteNumber = place % 7 == 0 ? 3 : 20;
            point.solutionType = 4;
            manager.surveyPoints().set(std::move(point));
        }
    }
}

/// The windows of the working place.
struct Place
{
    explicit Place(TestHost& host)
        : map("name=DataMap", &host), designTable("", &host), surveyTable("", &host),
          designTree("", &host), surveyTree("", &host), attributes("", &host), problems("", &host),
          follower(host)
    {
        host.windowRegistry.windows = {{QStringLiteral("DataMap"), &map},
                                       {QStringLiteral("Design Data List"), &designTable},
                                       {QStringLiteral("Survey Data List"), &surveyTable},
                                       {QStringLiteral("Design Lines"), &designTree},
                                       {QStringLiteral("Survey Lines"), &surveyTree},
                                       {QStringLiteral("Problems List"), &problems}};
        for (QWidget* const window :
             std::initializer_list<QWidget*>{&map, &designTable, &surveyTable, &designTree,
                                             &surveyTree, &attributes, &problems}) {
            window->resize(900, 400);
            window->show();
        }
        for (const char* const event : {"REFRESH_DESIGN_LAYER", "REFRESH_SURVEY_LAYER"})
            host.events.publish(event, nullptr, 0);
        QApplication::processEvents();
    }

    MapWindow map;
    DesignLineTable designTable;
    SurveyDataTable surveyTable;
    DesignLineControl designTree;
    SurveyDataControl surveyTree;
    AttributeControl attributes;
    ProblemWindow problems;
    SelectionFollower follower;
};

double millisecondsOf(const std::function<void()>& job)
{
    return 1000 * bench::secondsOf([&] {
               job();
               QApplication::processEvents();
           });
}

void BM_ProblemWindow(benchmark::State& state)
{
    TestHost host;
    DataProcessDataManager manager(&host);
    get_system_status_dictionary().set(status::kProjectOpen, "1");
    get_system_status_dictionary().set(status::kProjectPath, "/a");
    fill(manager);
    Place place(host);
    place.problems.find();
    auto& model = *place.problems.findChild<ProblemTableModel*>();
    std::printf("%d problems\n", model.rowCount());
    for (auto _ : state) {
        std::vector<double> steps;
        for (int i = 0; i < kSteps; ++i)
            steps.push_back(millisecondsOf([&] { place.problems.step(true); }));
        std::ranges::sort(steps);
        bench::report(state, "F8 among faulty results, median", steps[kSteps / 2], 16, "ms");
        bench::report(state, "F8 among faulty results, the slowest", steps.back(), 50, "ms");
        model.sortBy(int(ProblemField::Severity), Qt::AscendingOrder); // those without a result
        steps.clear();
        for (int i = 0; i < kSteps; ++i)
            steps.push_back(millisecondsOf([&] { place.problems.step(false); }));
        std::ranges::sort(steps);
        bench::report(state, "F8 among points without a result, median", steps[kSteps / 2], 16,
                      "ms");

        const auto takes = [&](const char* what, double limitMs, const auto& job,
                               const auto& undo) {
            bench::report(state, what, bench::medianOf([&] {
                              undo();
                              return millisecondsOf(job);
                          }),
                          limitMs, "ms");
        };
        const auto unsort = [&] { model.sortBy(-1, Qt::AscendingOrder); };
        takes(
            "sorted by number", 150,
            [&] { model.sortBy(int(ProblemField::Value), Qt::DescendingOrder); }, unsort);
        takes(
            "sorted by name", 300,
            [&] { model.sortBy(int(ProblemField::Point), Qt::DescendingOrder); }, unsort);
        takes(
            "searched", 300, [&] { model.setSearch(QStringLiteral("1500/15005")); },
            [&] { model.setSearch({}); });
        takes(
            "filtered by number", 100,
            [&] { model.setFilter(int(ProblemField::Value), QStringLiteral("> 5")); },
            [&] { model.clearFilters(); });
        takes(
            "old or not", 1, [&] { host.events.publish("ON_PROJECT_MODIFIED", nullptr, 0); },
            [] {});
    }
}

BENCHMARK(BM_ProblemWindow)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
