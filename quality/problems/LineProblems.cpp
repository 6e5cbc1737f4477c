#include "quality/problems/LineProblems.h"

#include "quality/problems/DesignLines.h"
#include "quality/problems/LineKinds.h"
#include "quality/problems/ResultLines.h"

#include <array>

namespace {

using namespace line_kinds;

constexpr std::array kLineKinds{&kSpacing,    &kGap,         &kAzimuth, &kReversed,
                                &kCoincident, &kInterleaved, &kHeight};

void findLines(const FinderInput& input, ProblemList& problems)
{
    const LineParameters parameters(input);
    LineTelling telling(problems, parameters);
    findInDesignLines(input, parameters, telling);
    findInResultLines(input, parameters, telling);
}

} // namespace

constexpr ProblemFinder kLineFinder{findLines, kLineKinds};
