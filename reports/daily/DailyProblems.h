#pragma once

#include "reports/daily/DailyTables.h"

class DailyFigures;
class ProblemList;

/// The open problems of the project: those that nobody has accepted.
struct DailyProblems
{
    DailyProblems(const ProblemList& problems, const DailyFigures& figures);

    std::size_t count = 0;
    DailyTable kinds; ///< how many there are of each kind
    DailyTable rows;  ///< one each: those of the day first, then the errors first
};
