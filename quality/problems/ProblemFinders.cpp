#include "quality/problems/ProblemFinders.h"

#include "lum_sdk/events/ProgressReporter.h"
#include "quality/problems/CheckProblems.h"
#include "quality/problems/CheckShotProblems.h"
#include "quality/problems/LineProblems.h"
#include "quality/problems/NameProblems.h"
#include "quality/problems/NeighbourProblems.h"
#include "quality/problems/QualityProblems.h"
#include "quality/problems/StoredValueProblems.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <atomic>
#include <future>
#include <utility>
#include <vector>

namespace {

// All finders: a new one is a line here.
// clang-format off
constexpr std::array kFinders{
    &kEmptyPointFinder,
    &kQualityFinder,
    &kResurveyFinder,
    &kRepeatFinder,
    &kStoredValueFinder,
    &kNeighbourFinder,
    &kNameFinder,
    &kLineFinder,
    &kCheckShotFinder,
};
// clang-format on

using Kinds = std::span<const ProblemKind* const>;

bool hasOneOf(const ProblemFinder& finder, Kinds kinds)
{
    return std::ranges::find_first_of(finder.kinds, kinds) != finder.kinds.end();
}

void keepWanted(ProblemList& problems, Kinds kinds)
{
    if (!kinds.empty())
        problems.removeIf([&](const Problem& problem) {
            return std::ranges::find(kinds, problem.kind) == kinds.end();
        });
}

/// For what explains others all of them run, since it tells how many it explains.
std::vector<const ProblemFinder*> wantedFinders(Kinds kinds)
{
    const bool isAll =
        kinds.empty() || std::ranges::any_of(kFinders, [&](const ProblemFinder* finder) {
            return finder->explain != nullptr && hasOneOf(*finder, kinds);
        });
    std::vector<const ProblemFinder*> finders(kFinders.begin(), kFinders.end());
    if (!isAll)
        std::erase_if(finders,
                      [&](const ProblemFinder* finder) { return !hasOneOf(*finder, kinds); });
    return finders;
}

/// Runs finders on the threads that call `work`, each finder once.
class Search
{
public:
    Search(const FinderInput& input, const std::vector<const ProblemFinder*>& finders)
        : m_input(input)
    {
        m_parts.reserve(finders.size());
        for (const ProblemFinder* const finder : finders)
            m_parts.push_back({finder, {}});
    }

    /// Ends when no finder is left; the last of the table take longest, and begin. \param report is
    /// told how far all of them are
    template <class Report>
    void work(Report report)
    {
        for (std::size_t next = 0; (next = m_next++) < m_parts.size();) {
            Part& part = m_parts[m_parts.size() - 1 - next];
            part.finder->find(m_input, part.problems);
            report(next + 1, m_parts.size());
        }
    }

    /// What is not wanted explains nothing: nobody would see it.
    ProblemList take(Kinds kinds)
    {
        for (Part& part : m_parts) {
            if (part.finder->explain != nullptr)
                keepWanted(part.problems, kinds);
        }
        std::size_t total = 0;
        for (const Part& part : m_parts)
            total += part.problems.size();
        ProblemList all;
        all.reserve(total);
        for (Part& part : m_parts)
            all.append(std::move(part.problems));
        for (const Part& part : m_parts) {
            if (part.finder->explain != nullptr)
                part.finder->explain(m_input, all);
        }
        keepWanted(all, kinds);
        return all;
    }

private:
    struct Part
    {
        const ProblemFinder* finder;
        ProblemList problems;
    };

    const FinderInput& m_input;
    std::vector<Part> m_parts;
    std::atomic<std::size_t> m_next{0};
};

} // namespace

ProblemList findProblems(const ProblemInput& data, ProgressReporter& progress, Kinds kinds)
{
    const QString caption = QCoreApplication::translate("ProblemFinders", "Find Problems");
    progress.start(caption);
    const std::uint64_t designRevision = data.design.revision(); // not for several threads
    const std::uint64_t surveyRevision = data.survey.revision();
    const FinderInput input(data);
    Search search(input, wantedFinders(kinds));
    auto helper =
        std::async(std::launch::async, [&] { search.work([](std::size_t, std::size_t) {}); });
    search.work(
        [&](std::size_t done, std::size_t total) { progress.report(caption, done, total); });
    helper.get();
    ProblemList all = search.take(kinds);
    all.designRevision = designRevision;
    all.surveyRevision = surveyRevision;
    progress.hide();
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
