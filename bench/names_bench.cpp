#include "basalt_utilities/Dictionary.h"
#include "bench/Limits.h"
#include "quality/problems/FinderInput.h"
#include "quality/problems/LineProblems.h"
#include "quality/problems/NameProblems.h"
#include "quality/problems/ProblemList.h"

#include <random>

// Wrong names and the checks of lines in 1,000,000 design points and 200,000 results, against
// building the index of the design and asking it once a result, or once a design point.

namespace {

constexpr int kLines = 500; // of each type
constexpr int kPointsALine = 1000;
constexpr int kStaked = 200; // lines
constexpr double kNearM = 1;

struct Survey
{
    DesignPoints design;
    SurveyPoints results;
};

/// Every hundredth result stands at the next point.
void stake(Survey& survey, const DesignPoint& point, int number, std::mt19937& random)
{
    std::normal_distribution<double> deviationM(0, 0.1);
    const double asideM = number % 100 == 50 ? 25 : 0;
    SurveyPoint result;
    result.lineNumber = point.lineNumber;
    result.pointNumber = point.pointNumber;
    result.pointMark = point.type;
    result.north = point.north + deviationM(random) + (point.type != 0 ? 0 : asideM);
    result.east = point.east + deviationM(random) + (point.type != 0 ? asideM : 0);
    result.elevation = 50 + deviationM(random);
    survey.results.set(std::move(result));
}

/// Receiver lines to the east, source lines to the north, 25 m from point to point.
Survey makeSurvey()
{
    Survey survey;
    std::mt19937 random(1);
    int number = 0;
    for (const int type : {1, 0}) {
        for (int line = 0; line < kLines; ++line) {
            for (int place = 0; place < kPointsALine; ++place) {
                DesignPoint point;
                point.lineNumber = std::to_string((type != 0 ? 1000 : 5000) + line);
                point.pointNumber = point.lineNumber + std::to_string(1001 + place);
                point.type = type;
                const double along = place * 25;
                const double across = line * 50;
                point.north = 4e6 + (type != 0 ? across : along);
                point.east = 5e5 + (type != 0 ? along : across) + 7;
                point.elevation = 50;
                if (line % (2 * kLines / kStaked) == 0)
                    stake(survey, point, ++number, random);
                survey.design.set(std::move(point));
            }
        }
    }
    return survey;
}

std::size_t find(const Survey& survey, const ProblemFinder& finder)
{
    const basalt::Dictionary parameters;
    const ProblemInput data{survey.design, survey.results, parameters};
    const FinderInput input(data);
    ProblemList problems;
    finder.find(input, problems);
    return problems.size();
}

/// Builds the index of both types, and asks once a point of `points`.
template <class Points>
void ask(const Survey& survey, const Points& points)
{
    const basalt::Dictionary parameters;
    const ProblemInput data{survey.design, survey.results, parameters};
    const FinderInput input(data);
    for (const auto& [number, line] : points) {
        for (const auto& point : line)
            benchmark::DoNotOptimize(input.indexedDesign(line.begin()->pointNumber.front() == '1')
                                         .index()
                                         .nearest(placeOf(point, 1), kNearM));
    }
}

void BM_WrongNames(benchmark::State& state)
{
    const Survey survey = makeSurvey();
    if (find(survey, kNameFinder) != survey.results.pointCount() / 100)
        state.SkipWithError("not all wrong names are found");
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            return bench::secondsOf([&] { benchmark::DoNotOptimize(find(survey, kNameFinder)); }) /
                   bench::secondsOf([&] { ask(survey, survey.results); });
        });
        bench::report(state, "wrong names / index built and asked once a result", ratio, 3);
    }
}

void BM_Lines(benchmark::State& state)
{
    const Survey survey = makeSurvey();
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            return bench::secondsOf([&] { benchmark::DoNotOptimize(find(survey, kLineFinder)); }) /
                   bench::secondsOf([&] { ask(survey, survey.design); });
        });
        bench::report(state, "line checks / index built and asked once a point", ratio, 1);
    }
}

BENCHMARK(BM_WrongNames)->Iterations(1);
BENCHMARK(BM_Lines)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    return bench::run(argc, argv);
}
