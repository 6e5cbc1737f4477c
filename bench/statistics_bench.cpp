#include "basalt_utilities/Dictionary.h"
#include "bench/Limits.h"
#include "quality/statistics/Figures.h"
#include "quality/statistics/MeasuredPairs.h"
#include "quality/statistics/RoverLog.h"
#include "quality/statistics/TestFigures.h"
#include "views/statistics/StatisticsTableModel.h"

#include <QApplication>

#include <memory>
#include <random>

// Statistics of 200,000 results, beside the time in which a user does not notice that figures are
// computed anew.

namespace {

constexpr int kLines = 400;
constexpr int kPointsALine = 500;
constexpr int kDesignALine = 600; // a sixth is left
constexpr double kSeconds = 0.1;
constexpr std::int64_t kFirstMs = 1700000000000;

struct Survey
{
    DesignPoints design;
    SurveyPoints results;
};

SurveyPoint resultOf(const DesignPoint& design, int number, std::mt19937& random)
{
    std::normal_distribution<double> deviation(0.01, 0.2);
    const int crew = static_cast<int>(random() % 30); // neighbours are of different crews
    SurveyPoint point;
    point.lineNumber = design.lineNumber;
    point.pointNumber = design.pointNumber;
    point.pointMark = design.type;
    point.designNorth = design.north;
    point.designEast = design.east;
    point.designElevation = 50;
    point.north = design.north + deviation(random);
    point.east = design.east + deviation(random);
    point.elevation = 50 + deviation(random);
    point.antennaHeight = 2;
    point.horizontalAccuracy = point.verticalAccuracy = 0.02;
    point.pdop = point.hdop = point.vdop = 1 + number % 7 * 0.3;
    point.satelliteNumber = 10 + number % 20;
    point.solutionType = 4;
    point.dateTime = kFirstMs + std::int64_t(number) * 20000 * 15;
    point.instrumentSerialNumber = "A rover with the number " + std::to_string(100 + crew);
    point.surveyor = "Surveyor " + std::to_string(crew);
    point.baseStationId = std::to_string(1000 + number / 5000 % 4);
    return point;
}

Survey makeSurvey()
{
    Survey survey;
    std::mt19937 random(1);
    for (int line = 0; line < kLines; ++line) {
        for (int place = 0; place < kDesignALine; ++place) {
            DesignPoint point;
            point.lineNumber = std::to_string(1000 + line);
            point.pointNumber = point.lineNumber + std::to_string(5000 + place);
            point.north = 4000000 + 25 * place;
            point.east = 500000 + 50 * line;
            point.type = line % 2;
            survey.design.set(point);
            if (place < kPointsALine)
                survey.results.set(resultOf(point, line * kPointsALine + place, random));
        }
    }
    return survey;
}

statistics::SurveySample read(const Survey& survey)
{
    return statistics::sampleOf({survey.design,
                                 survey.results,
                                 QualityLimits::from(basalt::Dictionary()),
                                 "F",
                                 basalt::LocalTimes(8),
                                 {}});
}

std::size_t sixGroupings(const statistics::SurveySample& sample)
{
    using statistics::GroupKey;
    std::size_t groups = 0;
    for (const auto key : {GroupKey::Line, GroupKey::Day, GroupKey::Rover, GroupKey::Surveyor,
                           GroupKey::Base, GroupKey::PointKind})
        groups += statistics::figuresOf(sample, statistics::groupBy(sample, {key})).size();
    return groups;
}

template <class Job>
void measure(benchmark::State& state, const char* what, double limit, Job job)
{
    for (auto _ : state)
        bench::report(state, what, bench::medianOf([&] { return bench::secondsOf(job); }, 9), limit,
                      "s");
}

void BM_SixGroupings(benchmark::State& state)
{
    const Survey survey = makeSurvey();
    measure(state, "200,000 results read, judged and in six groupings", kSeconds,
            [&] { benchmark::DoNotOptimize(sixGroupings(read(survey))); });
}

void BM_GroupingAnew(benchmark::State& state)
{
    using statistics::GroupKey;
    const Survey survey = makeSurvey();
    const statistics::SurveySample sample = read(survey);
    measure(state, "200,000 results by base and day, anew", kSeconds / 4, [&] {
        const auto grouping = statistics::groupBy(sample, {GroupKey::Base, GroupKey::Day});
        benchmark::DoNotOptimize(statistics::figuresOf(sample, grouping));
    });
}

void BM_GroupsShown(benchmark::State& state)
{
    using statistics::GroupKey;
    const Survey survey = makeSurvey();
    const auto sample = std::make_shared<const statistics::SurveySample>(read(survey));
    StatisticsTableModel model;
    GroupKey key = GroupKey::Line;
    measure(state, "200,000 results: rows of the window, grouped anew", kSeconds, [&] {
        key = key == GroupKey::Line ? GroupKey::Rover : GroupKey::Line;
        model.setGroups(sample, key);
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column)
                benchmark::DoNotOptimize(model.data(model.index(row, column), Qt::DisplayRole));
        }
    });
}

void BM_RoverLog(benchmark::State& state)
{
    const Survey survey = makeSurvey();
    const statistics::SurveySample sample = read(survey);
    measure(state, "200,000 results: tests, sessions, gaps, bases, pairs", 3 * kSeconds, [&] {
        benchmark::DoNotOptimize(statistics::testFiguresOf(sample));
        benchmark::DoNotOptimize(statistics::roverSessionsOf(sample));
        benchmark::DoNotOptimize(statistics::roverGapsOf(sample));
        benchmark::DoNotOptimize(statistics::basesOf(sample));
        benchmark::DoNotOptimize(statistics::resurveyPairs(survey.results, "F", 1));
        benchmark::DoNotOptimize(statistics::repeatPairs(survey.results, 1));
    });
}

BENCHMARK(BM_SixGroupings)->Iterations(1);
BENCHMARK(BM_GroupingAnew)->Iterations(1);
BENCHMARK(BM_GroupsShown)->Iterations(1);
BENCHMARK(BM_RoverLog)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
