#include "bench/Limits.h"
#include "design/DesignGenerator.h"
#include "exchange/ImportSummary.h"
#include "exchange/SurveyCsvReader.h"
#include "exchange/SurveyCsvWriter.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/Host.h"
#include "model/SurveyColumns.h"
#include "project/DataProcessDataManager.h"

#include <QTemporaryDir>

#include <cstdlib>

// What it costs that changes can be taken back, against the same work on the containers alone.

namespace {

constexpr int kLines = 1000;
constexpr int kPerLine = 200;
constexpr int kDeletedPerLine = 10;

SurveyPoint result(int line, int place, double north)
{
    SurveyPoint point;
    point.lineNumber = std::to_string(1000 + line);
    point.pointNumber = point.lineNumber + std::to_string(5000 + place);
    point.north = north;
    point.dateTime = 1700000000000 + place;
    point.instrumentSerialNumber = "R10-5412F00781";
    point.surveyor = "Zhang San";
    point.photoPath = "photos/2024-05-31/" + point.pointNumber + ".jpg";
    point.satDetail = "G12 R7 C14 E8";
    return point;
}

SurveyPoints results(double north)
{
    SurveyPoints points;
    for (int line = 0; line < kLines; ++line) {
        for (int place = 0; place < kPerLine; ++place)
            points.set(result(line, place, north));
    }
    return points;
}

/// 10 of each line, not beside one another.
std::vector<PointName> deletedNames()
{
    std::vector<PointName> names;
    for (int line = 0; line < kLines; ++line) {
        for (int i = 0; i < kDeletedPerLine; ++i) {
            SurveyPoint point = result(line, i * kPerLine / kDeletedPerLine + line % 20, 0);
            names.push_back({std::move(point.lineNumber), std::move(point.pointNumber)});
        }
    }
    return names;
}

struct Manager
{
    Manager()
    {
        manager.setEditHandler([this](const std::shared_ptr<Edit>& made) { edit = made; });
    }

    Host host;
    DataProcessDataManager manager{&host};
    std::shared_ptr<Edit> edit;
};

void BM_Deletion(benchmark::State& state)
{
    const std::vector<PointName> names = deletedNames();
    Manager project;
    project.manager.surveyPoints() = results(1);
    SurveyPoints alone = results(1);
    std::vector<SurveyPoint> kept;
    for (const PointName& name : names)
        kept.push_back(*alone.find(name.line, name.point));
    const auto measure = [&](bool isTakenBack) {
        const double deleting =
            bench::secondsOf([&] { project.manager.deleteSurveyPoints(names); });
        const double takingBack =
            bench::secondsOf([&] { project.manager.exchange(project.edit, true); });
        const double erasing = bench::secondsOf([&] {
            for (const PointName& name : names)
                alone.erase(name.line, name.point);
        });
        std::vector<SurveyPoint> back = kept;
        const double setting = bench::secondsOf([&] {
            for (SurveyPoint& point : back)
                alone.set(std::move(point));
        });
        std::printf("deleted in %.1f ms, plain %.1f ms; back in %.1f ms, plain %.1f ms\n",
                    deleting * 1e3, erasing * 1e3, takingBack * 1e3, setting * 1e3);
        return isTakenBack ? takingBack / setting : deleting / erasing;
    };
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        bench::report(state, "10,000 of 200,000 results deleted / erased",
                      bench::medianOf([&] { return measure(false); }), 2);
        bench::report(state, "taken back / set", bench::medianOf([&] { return measure(true); }), 2);
    }
    if (project.manager.surveyPoints().pointCount() != std::size_t(kLines) * kPerLine)
        std::abort();
}

/// \param present  what the import comes to
double importSeconds(const QString& path, const SurveyPoints& present, bool isKept)
{
    SurveyPoints points(present);
    ImportSummary summary;
    ProgressReporter nobody(nullptr);
    TakenOver<SurveyPoints> undo;
    bool isRead = false;
    const double seconds = bench::secondsOf([&] {
        isRead = readSurveyCsv(path, points, nobody, summary, isKept ? &undo : nullptr).isDone();
    });
    return isRead && points.pointCount() == std::size_t(kLines) * kPerLine ? seconds : 1e9;
}

void BM_Import(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("survey.csv"));
    const SurveyPoints present = results(2);
    QStringList lines;
    for (const auto& [number, line] : present)
        lines << QString::fromStdString(number);
    ProgressReporter nobody(nullptr);
    if (!writeSurveyCsv(path, results(1), lines, {surveyCaptions(), 0}, nobody).isDone())
        std::abort();
    const auto ratio = [&](const SurveyPoints& before) {
        return bench::medianOf(
            [&] { return importSeconds(path, before, true) / importSeconds(path, before, false); },
            9);
    };
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        bench::report(state, "import over 200,000 results, with undo / without", ratio(present),
                      1.1);
        bench::report(state, "import into nothing, with undo / without", ratio({}), 1.1);
    }
}

void BM_Generation(benchmark::State& state)
{
    basalt::Dictionary parameters;
    parameters.set("r_line_end_num", "9990");
    parameters.set("r_pt_end_num", "9990");
    Manager project;
    const auto generate = [&] {
        project.manager.generateDesign(DesignLines::Receiver, parameters);
    };
    generate();
    parameters.set("calc_r_start_north", "5000000");
    const DesignPoints& design = project.manager.designPoints();
    const auto fill = [&] {
        DesignPoints filled;
        return bench::secondsOf([&] {
            for (const auto& [number, line] : design) {
                for (const DesignPoint& point : line)
                    filled.set(point);
            }
        });
    };
    const auto thereAndBack = [&] {
        const double seconds = bench::secondsOf([&] {
            generate();
            project.manager.exchange(project.edit, true);
        });
        if (design.pointCount() != 1000000 || design.begin()->second.begin()->north != 0)
            std::abort();
        project.edit.reset(); // its end does not count
        return seconds;
    };
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        bench::report(state, "1,000,000 points generated over others, and back / filling",
                      bench::medianOf([&] { return thereAndBack() / fill(); }), 3);
}

BENCHMARK(BM_Deletion)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Import)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Generation)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return bench::run(argc, argv);
}
