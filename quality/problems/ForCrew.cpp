#include "quality/problems/ForCrew.h"

#include "quality/problems/NameProblems.h"

bool isForCrew(const Problem& problem, const DesignPoints& design)
{
    if (problem.point.empty() || problem.kind->severity == Severity::Note)
        return false;
    if (!proposalOf(problem).empty()) // the office gives the right name
        return leavesPoint(problem);
    if (!problem.isDesign)
        return true;
    const DesignPoint* const point = design.find(problem.line, problem.point);
    return point != nullptr && point->status == 0;
}
