#include "quality/problems/CheckShotProblems.h"

#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "quality/problems/ShiftExplanation.h"
#include "quality/problems/ShiftProblems.h"
#include "quality/problems/WrongNames.h"
#include "quality/statistics/Grouping.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

using statistics::GroupKey;

QString translated(const char* text)
{
    return QCoreApplication::translate("CheckShotProblems", text);
}

/// The surveyor, or the rover of one who is not known.
QString crewText(const Problem& problem)
{
    if (!problem.surveyor.empty())
        return translated(QT_TRANSLATE_NOOP("CheckShotProblems", "Surveyor %1"))
            .arg(lum::toQString(problem.surveyor));
    if (!problem.rover.empty())
        return translated(QT_TRANSLATE_NOOP("CheckShotProblems", "Rover %1"))
            .arg(lum::toQString(problem.rover));
    return translated(QT_TRANSLATE_NOOP("CheckShotProblems", "A crew without a name"));
}

/// `detail` is the day.
constexpr ProblemKind kFewCheckShots{
    "few_check_shots",
    QT_TRANSLATE_NOOP("ProblemKinds", "Too few check shots"),
    Severity::Warning,
    [](const Problem& problem) {
        return translated(
                   QT_TRANSLATE_NOOP("CheckShotProblems",
                                     "%1 on %2: points measured %3, measured again %4, at least "
                                     "%5 are wanted."))
            .arg(crewText(problem), lum::toQString(problem.detail),
                 lum::groupedNumber(problem.count), lum::groupedNumber(std::llround(problem.value)),
                 lum::groupedNumber(std::llround(problem.limit)));
    },
    "",
    0};

constexpr std::array kKinds{&kBaseShift, &kPoleShift, &kSurveyShift, &kFewCheckShots,
                            &kBaseDifference};

/// What a crew did on a day.
struct CrewDay
{
    std::int64_t day = 0;
    std::string surveyor;
    std::string rover;
    std::size_t points = 0;
    std::size_t checks = 0;
    std::int64_t firstMs = 0;

    void add(const statistics::Observation& result, bool isCheck)
    {
        ++(isCheck ? checks : points);
        firstMs = firstMs == 0 ? result.timeMs : std::min(firstMs, result.timeMs);
    }
};

/// Whether a result measures a point again; not so that of a design point with such a number.
bool isCheck(const DesignPoints& design, const statistics::Observation& result)
{
    return !result.isFirst() &&
           design.find(result.point->lineNumber, result.point->pointNumber) == nullptr;
}

/// Results without a time are of no day.
std::vector<CrewDay> crewDays(const DesignPoints& design, const statistics::SurveySample& sample)
{
    const auto grouping =
        statistics::groupBy(sample, {GroupKey::Day, GroupKey::Surveyor, GroupKey::Rover});
    const auto members = statistics::membersOf(grouping);
    std::vector<CrewDay> days;
    for (std::size_t group = 0; group < members.size(); ++group) {
        const std::int64_t day = grouping.value(sample, group, GroupKey::Day).number;
        const std::string& surveyor = grouping.value(sample, group, GroupKey::Surveyor).text;
        const std::string& rover = grouping.value(sample, group, GroupKey::Rover).text;
        if (day == statistics::KeyValue::kNoNumber)
            continue;
        const bool isSame = !days.empty() && days.back().day == day && !surveyor.empty() &&
                            days.back().surveyor == surveyor;
        if (!isSame)
            days.push_back({day, surveyor, rover, 0, 0, 0});
        for (const std::uint32_t place : members[group])
            days.back().add(sample.results[place], isCheck(design, sample.results[place]));
    }
    return days;
}

void addFewCheckShots(const FinderInput& input, const statistics::SurveySample& sample,
                      ProblemList& problems)
{
    constexpr double kRounding = 1e-9;
    const double percent = input.limit("check_shots_percent");
    const double least = input.limit("check_shots_min");
    for (const CrewDay& day : crewDays(input.design(), sample)) {
        const auto points = static_cast<double>(day.points);
        const double share = std::ceil(points * percent / 100 - kRounding);
        const double wanted = std::max(least, share);
        if (points <= least || static_cast<double>(day.checks) >= wanted)
            continue;
        Problem& problem = problems.add(kFewCheckShots);
        problem.surveyor = problems.keepOnce(day.surveyor);
        problem.rover = problems.keepOnce(day.rover);
        problem.timeMs = day.firstMs;
        problem.detail = problems.keepOnce(dayText(day.day).toStdString());
        problem.count = static_cast<std::uint32_t>(day.points);
        problem.value = static_cast<double>(day.checks);
        problem.limit = wanted;
    }
}

/// A result under a wrong name is compared with the wrong point, and tells nothing about its base
/// and its pole. \return these results
ResultSet forgetWrongNames(const FinderInput& input, statistics::SurveySample& sample)
{
    ResultSet misnamed;
    for (const WrongName& wrong : findWrongNames(input, NameLimits::from(input)))
        misnamed.insert(wrong.result);
    if (misnamed.empty())
        return misnamed;
    for (statistics::Observation& result : sample.results) {
        if (misnamed.contains(result.point))
            result.eastM = result.northM = result.distanceM = result.heightM = kNoValue;
    }
    return misnamed;
}

void findAll(const FinderInput& input, ProblemList& problems)
{
    const DesignPoints none; // what is staked of a large design is counted for long
    statistics::SurveySample sample = statistics::sampleOf(
        {none, input.survey(), input.quality(), input.resurveyCode(), input.zone(), {}});
    const ResultSet misnamed = forgetWrongNames(input, sample);
    addShifts(input, sample, misnamed, problems);
    addFewCheckShots(input, sample, problems);
}

} // namespace

constexpr ProblemFinder kCheckShotFinder{findAll, kKinds, explainByShifts};
