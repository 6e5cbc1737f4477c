#include "quality/problems/ProblemFinders.h"

#include "lum_sdk/events/ProgressReporter.h"
#include "quality/problems/CheckProblems.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <vector>

namespace {

// All finders: a new one is a line here.
constexpr std::array kFinders{&kEmptyPointFinder};

bool findsOneOf(const ProblemFinder& finder, std::span<const ProblemKind* const> wanted)
{
    return wanted.empty() || std::ranges::find_first_of(finder.kinds, wanted) != finder.kinds.end();
}

} // namespace

ProblemList findProblems(const ProblemInput& data, ProgressReporter& progress,
                         std::span<const ProblemKind* const> kinds)
{
    const QString caption = QCoreApplication::translate("ProblemFinders", "Find Problems");
    const FinderInput input(data);
    ProblemList all;
    std::size_t done = 0;
    progress.start(caption);
    for (const ProblemFinder* const finder : kFinders) {
        if (findsOneOf(*finder, kinds))
            finder->find(input, all);
        progress.report(caption, ++done, kFinders.size());
    }
    for (const ProblemFinder* const finder : kFinders) {
        if (finder->explain != nullptr)
            finder->explain(input, all);
    }
    progress.hide();
    all.designRevision = data.design.revision();
    all.surveyRevision = data.survey.revision();
    return all;
}

std::span<const ProblemKind* const> problemKinds()
{
    static const auto kKinds = [] {
        std::vector<const ProblemKind*> kinds;
        for (const ProblemFinder* const finder : kFinders)
            kinds.insert(kinds.end(), finder->kinds.begin(), finder->kinds.end());
        return kinds;
    }();
    return kKinds;
}

const ProblemKind* findProblemKind(std::string_view name)
{
    const auto kinds = problemKinds();
    const auto found =
        std::ranges::find_if(kinds, [&](const ProblemKind* kind) { return name == kind->name; });
    return found == kinds.end() ? nullptr : *found;
}
