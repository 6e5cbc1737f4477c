#include "quality/problems/NeighbourProblems.h"

#include "quality/problems/Median.h"
#include "quality/problems/ProblemColumns.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

constexpr std::size_t kMost = 4; // more reach too far down a slope
constexpr std::size_t kFewest = 3;
constexpr double kWithinM = 500;

constexpr ProblemKind kOffNeighbours{
    "neighbour_height", QT_TRANSLATE_NOOP("ProblemKinds", "Height off its neighbours"),
    Severity::Warning, [](const Problem& problem) {
        const char* const text =
            problem.value > 0
                ? QT_TRANSLATE_NOOP("NeighbourProblems", "It is %1 higher than its neighbours.")
                : QT_TRANSLATE_NOOP("NeighbourProblems", "It is %1 lower than its neighbours.");
        return QCoreApplication::translate("NeighbourProblems", text)
            .arg(problemValueText(*problem.kind, std::fabs(problem.value)));
    }};
constexpr std::array kKinds{&kOffNeighbours};

void findOffNeighbours(const FinderInput& input, ProblemList& problems)
{
    const double limitM = input.limit("neighbour_height_max");
    if (limitM == 0)
        return;
    const IndexedPoints<SurveyPoint>& results = input.indexedResults();
    std::vector<PointIndex::Found> near;
    std::vector<double> heights;
    for (std::size_t number = 0; number < results.size(); ++number) {
        results.index().nearest(results.index()[number], kMost + 1, kWithinM, near);
        heights.clear();
        for (const PointIndex::Found& found : near) {
            if (found.number != number && std::isfinite(results[found.number].elevation))
                heights.push_back(results[found.number].elevation);
        }
        if (heights.size() < kFewest)
            continue;
        const double off = results[number].elevation - medianInPlace(heights);
        if (!(std::fabs(off) > limitM + kRoundingM))
            continue;
        Problem& problem = problems.add(kOffNeighbours, results[number]);
        problem.value = off;
        problem.limit = limitM;
        problem.count = static_cast<std::uint32_t>(heights.size());
    }
}

} // namespace

constexpr ProblemFinder kNeighbourFinder{findOffNeighbours, kKinds};
