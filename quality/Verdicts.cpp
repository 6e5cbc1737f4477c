#include "quality/Verdicts.h"

#include <bit>

Verdicts verdictsOf(const DesignPoints& design, const SurveyPoints& survey)
{
    Verdicts found;
    const std::size_t results = survey.pointCount();
    found.codes.reserve(design.pointCount() + 2 * results);
    found.differences.reserve(3 * results);
    for (const auto& [number, line] : design) {
        for (const DesignPoint& point : line) {
            fetchAhead(point);
            found.codes.push_back(point.status);
        }
    }
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint& point : line) {
            fetchAhead(point);
            found.codes.insert(found.codes.end(), {point.qualityStandard, point.isResurvey});
            for (const double difference :
                 {point.resurveyXDiff, point.resurveyYDiff, point.resurveyHDiff})
                found.differences.push_back(std::bit_cast<std::uint64_t>(difference));
        }
    }
    return found;
}
