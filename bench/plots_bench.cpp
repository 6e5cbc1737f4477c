#include "basalt_utilities/Dictionary.h"
#include "bench/Limits.h"
#include "plots/PlotKinds.h"
#include "plots/StatisticsPlot.h"

#include <QApplication>

#include <random>

// Each plot of 200,000 points: shown while a user does not notice it, and moved at the rate of the
// screen.

namespace {

constexpr int kLines = 400;
constexpr int kPointsALine = 500;
constexpr double kShownMs = 150;
constexpr double kMovedMs = 1000.0 / 60;
constexpr std::int64_t kFirstMs = 1700000000000;

struct Survey
{
    DesignPoints design;
    SurveyPoints results;
    statistics::MeasuredPairs pairs;
};

SurveyPoint resultOf(int number, std::mt19937& random)
{
    std::normal_distribution<double> deviation(0.01, 0.2);
    const int crew = static_cast<int>(random() % 30);
    SurveyPoint point;
    point.lineNumber = std::to_string(1000 + number / kPointsALine);
    point.pointNumber = point.lineNumber + std::to_string(5000 + number % kPointsALine);
    point.pointMark = number % 2;
    point.designNorth = 4000000;
    point.designEast = 500000;
    point.designElevation = 50;
    point.north = point.designNorth + deviation(random);
    point.east = point.designEast + deviation(random);
    point.elevation = 50 + deviation(random);
    point.horizontalAccuracy = 0.01 + 0.001 * double(random() % 50);
    point.satelliteNumber = 10 + number % 20;
    point.dateTime = kFirstMs + std::int64_t(number) * 20000 * 15;
    point.instrumentSerialNumber = "rover " + std::to_string(100 + crew);
    point.surveyor = "Surveyor " + std::to_string(crew);
    point.baseStationId = std::to_string(1000 + number / 5000 % 4);
    return point;
}

Survey makeSurvey()
{
    Survey survey;
    std::mt19937 random(1);
    for (int i = 0; i < kLines * kPointsALine; ++i) {
        const SurveyPoint point = resultOf(i, random);
        survey.design.set({point.lineNumber, point.pointNumber, point.designNorth, point.designEast,
                           50, 0, point.pointMark, 1});
        survey.results.set(point);
    }
    // Each has three differences.
    for (const auto& [number, line] : survey.results) {
        for (const SurveyPoint& point : line)
            survey.pairs.pairs.push_back({&point, &point, point.east - point.designEast,
                                          point.north - point.designNorth,
                                          point.elevation - point.designElevation, 0});
    }
    return survey;
}

PlotData dataOf(const Survey& survey)
{
    auto sample = std::make_shared<statistics::SurveySample>(
        statistics::sampleOf({survey.design,
                              survey.results,
                              QualityLimits::from(basalt::Dictionary()),
                              "F",
                              basalt::LocalTimes(8),
                              {}}));
    return PlotData::ofAll(std::move(sample),
                           std::make_shared<statistics::MeasuredPairs>(survey.pairs),
                           basalt::LocalTimes(8));
}

template <class Job>
double millisecondsOf(Job job)
{
    return 1000 * bench::secondsOf(job);
}

void BM_Plots(benchmark::State& state)
{
    const Survey survey = makeSurvey();
    const PlotData data = dataOf(survey);
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        for (const PlotKind& kind : plotKinds()) {
            const auto plot = kind.make(nullptr);
            plot->resize(1000, 700);
            plot->show();
            const std::string name = kind.name;
            bench::report(state, (name + ": 200,000 points shown").c_str(), bench::medianOf([&] {
                              return millisecondsOf([&] {
                                  plot->setData(data);
                                  plot->grab();
                              });
                          }),
                          kShownMs, "ms");
            PlotPanel& panel = *plot->panels().front();
            double pixels = 3;
            bench::report(state, (name + ": moved").c_str(), bench::medianOf([&] {
                              pixels = -pixels;
                              return millisecondsOf([&] {
                                  plot->setView(panel, panel.moved(panel.view(), {pixels, 2}));
                                  plot->grab();
                              });
                          }),
                          kMovedMs, "ms");
        }
    }
}

BENCHMARK(BM_Plots)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return bench::run(argc, argv);
}
