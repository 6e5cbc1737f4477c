#include "quality/problems/ForCrew.h"

#include "quality/problems/Problem.h"

bool isForCrew(const Problem& problem, const DesignPoints& design)
{
    if (problem.point.empty() || problem.kind->severity == Severity::Note)
        return false;
    if (!problem.isDesign)
        return true;
    const DesignPoint* const point = design.find(problem.line, problem.point);
    return point != nullptr && point->status == 0;
}
