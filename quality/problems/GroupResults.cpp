#include "quality/problems/GroupResults.h"

#include "quality/problems/GroupShift.h"
#include "quality/problems/Problem.h"
#include "quality/problems/ShiftProblems.h"

namespace {

using statistics::KeyValue;

std::int64_t dayOf(std::int64_t timeMs, basalt::LocalTimes& zone)
{
    constexpr std::int64_t kDaySeconds = 86400;
    if (timeMs == 0)
        return KeyValue::kNoNumber;
    const std::int64_t clock = zone.clockSeconds(timeMs);
    return clock / kDaySeconds - (clock % kDaySeconds < 0 ? 1 : 0);
}

template <class Judge>
std::vector<const SurveyPoint*> resultsThat(const SurveyPoints& survey, Judge judge)
{
    std::vector<const SurveyPoint*> results;
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint& point : line) {
            if (judge(point))
                results.push_back(&point);
        }
    }
    return results;
}

} // namespace

std::vector<const SurveyPoint*> groupResults(const Problem& problem, const SurveyPoints& survey,
                                             basalt::LocalTimes zone)
{
    if (problem.kind == &kBaseShift || problem.kind == &kPoleShift ||
        problem.kind == &kSurveyShift) {
        const GroupShift shift = GroupShift::fromText(problem.detail);
        return resultsThat(survey, [&](const SurveyPoint& point) {
            return shift.contains(dayOf(point.dateTime, zone), point.baseStationId,
                                  point.instrumentSerialNumber);
        });
    }
    if (!problem.line.empty() || problem.timeMs == 0)
        return {};
    const std::int64_t day = dayOf(problem.timeMs, zone);
    return resultsThat(survey, [&](const SurveyPoint& point) { // a crew is its surveyor
        const bool isOfCrew =
            point.surveyor == problem.surveyor.view() &&
            (!problem.surveyor.empty() || point.instrumentSerialNumber == problem.rover.view());
        return isOfCrew && dayOf(point.dateTime, zone) == day;
    });
}
