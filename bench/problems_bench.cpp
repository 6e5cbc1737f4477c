#include "basalt_utilities/Dictionary.h"
#include "bench/Limits.h"
#include "lum_sdk/Host.h"
#include "project/DataProcessDataManager.h"
#include "quality/problems/ProblemFinders.h"

#include <cmath>
#include <random>

// All problems of 1,000,000 design points and 200,000 results, with the checks that come first.
// Many of the problems are accepted.

namespace {

constexpr int kLines = 1000;
constexpr int kPointsALine = 1000;
constexpr int kStakedALine = 200;
constexpr double kSeconds = 1;
constexpr std::int64_t kFirstMs = 1700000000000;

DesignPoint designAt(int line, int place)
{
    DesignPoint point;
    point.lineNumber = std::to_string(1000 + line);
    point.pointNumber = point.lineNumber + std::to_string(5000 + place);
    point.north = 4000000 + 25.0 * place;
    point.east = 500000 + 50.0 * line;
    point.elevation = 100 + 20 * std::sin(place / 50.0) + 20 * std::sin(line / 30.0);
    point.type = line % 2;
    return point;
}

/// A result near its stake; every fiftieth has some fault.
SurveyPoint resultOf(const DesignPoint& design, int number, std::mt19937& random)
{
    std::normal_distribution<double> deviation(0, 0.05);
    const bool isBad = number % 50 == 7;
    SurveyPoint point;
    point.lineNumber = design.lineNumber;
    point.pointNumber = design.pointNumber;
    point.pointMark = design.type;
    point.designNorth = design.north;
    point.designEast = design.east;
    point.designElevation = design.elevation;
    point.north = design.north + deviation(random) + (isBad ? 2 : 0);
    point.east = design.east + deviation(random);
    point.elevation = design.elevation + deviation(random);
    point.antennaHeight = 2;
    point.horizontalAccuracy = point.verticalAccuracy = 0.02;
    point.pdop = isBad ? 4 : 1.5;
    point.hdop = point.vdop = 1;
    point.satelliteNumber = 12;
    point.epochNumber = isBad ? 3 : 10;
    point.ageOfDiff = 1;
    point.rms = 0.01;
    point.solutionType = isBad ? 5 : 4;
    point.startTime = kFirstMs + std::int64_t(number) * 20000;
    point.dateTime = point.endTime = point.startTime + 10000;
    point.instrumentSerialNumber = "A rover with the number " + std::to_string(100 + number % 30);
    point.surveyor = "Surveyor " + std::to_string(number % 30);
    point.baseStationId = std::to_string(1000 + number / 5000 % 4);
    return point;
}

/// Of 40 results one is a resurvey, and one a check point.
void addMeasuredAgain(SurveyPoint point, int number, SurveyPoints& survey)
{
    point.north += 0.01;
    if (number % 40 == 3)
        point.pointNumber += 'F';
    else if (number % 40 == 4)
        point.pointNumber = 'C' + point.pointNumber + "_0";
    else
        return;
    survey.set(std::move(point));
}

void fill(DataProcessDataManager& manager)
{
    std::mt19937 random(1);
    int number = 0;
    for (int line = 0; line < kLines; ++line) {
        for (int place = 0; place < kPointsALine; ++place) {
            const DesignPoint design = designAt(line, place);
            manager.designPoints().set(design);
            if (place >= kStakedALine)
                continue;
            const SurveyPoint result = resultOf(design, ++number, random);
            manager.surveyPoints().set(result);
            addMeasuredAgain(result, number, manager.surveyPoints());
        }
    }
}

/// A project in which every limit is set.
struct Project
{
    Project()
    {
        fill(manager);
        for (const char* const limit :
             {"solution_type_min", "age_of_diff_max", "epoch_num_min", "occupation_min", "rms_max"})
            manager.qualityParameters().set(limit, "4");
        manager.qualityParameters().set("neighbour_height_max", "30");
    }

    Host host;
    DataProcessDataManager manager{&host};
};

void acceptSome(DataProcessDataManager& manager, std::size_t count)
{
    const ProblemList problems = manager.findProblems();
    std::vector<Acceptance> chosen;
    for (std::size_t i = 0; i < count; ++i)
        chosen.push_back(*acceptanceOf(problems[i * (problems.size() / count)],
                                       manager.designPoints(), manager.surveyPoints()));
    manager.accept(std::move(chosen));
}

void BM_AllProblems(benchmark::State& state)
{
    Project project;
    acceptSome(project.manager, 10000);
    std::size_t found = 0;
    for (auto _ : state)
        bench::report(state, "all problems of 1,000,000 + 200,000 points, with the checks",
                      bench::medianOf([&] {
                          return bench::secondsOf(
                              [&] { found = project.manager.findProblems().size(); });
                      }),
                      kSeconds, "s");
    state.counters["problems"] = static_cast<double>(found);
}

BENCHMARK(BM_AllProblems)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char* argv[])
{
    return bench::run(argc, argv);
}
