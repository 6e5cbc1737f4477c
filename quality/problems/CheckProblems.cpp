#include "quality/problems/CheckProblems.h"

#include <QCoreApplication>

#include <array>

namespace {

constexpr ProblemKind kMissing{"missing", QT_TRANSLATE_NOOP("ProblemKinds", "Not surveyed"),
                               Severity::Warning, [](const Problem& /*problem*/) {
                                   return QCoreApplication::translate("CheckProblems",
                                                                      "The point has no result.");
                               }};
constexpr std::array kEmptyPointKinds{&kMissing};

void findEmptyPoints(const FinderInput& input, ProblemList& problems)
{
    for (const auto& [number, line] : input.design()) {
        for (const DesignPoint& point : line) {
            fetchAhead(point);
            if (point.status == 0)
                problems.add(kMissing, point);
        }
    }
}

} // namespace

constexpr ProblemFinder kEmptyPointFinder{findEmptyPoints, kEmptyPointKinds};
