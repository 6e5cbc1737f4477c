#pragma once

#include "quality/problems/FinderInput.h"
#include "quality/problems/ProblemList.h"

#include <span>
#include <string>

class ProgressReporter;

/// Finds the problems of some kinds.
struct ProblemFinder
{
    /// Adds what it finds, in the order of the points. Finders run on several threads at once.
    void (*find)(const FinderInput& input, ProblemList& problems);
    std::span<const ProblemKind* const> kinds; ///< what it may find
    /// Removes from the problems of all finders those that one of its own explains; mostly null.
    void (*explain)(const FinderInput& input, ProblemList& all) = nullptr;
};

/// All problems, finder after finder.
/// \param kinds  those that are wanted; all when it is empty
[[nodiscard]] ProblemList findProblems(const ProblemInput& data, ProgressReporter& progress,
                                       std::span<const ProblemKind* const> kinds = {});

/// All kinds, in the order of the finders.
[[nodiscard]] std::span<const ProblemKind* const> problemKinds();

/// Null when there is none of this name.
[[nodiscard]] const ProblemKind* findProblemKind(std::string_view name);
