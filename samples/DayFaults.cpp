#include "samples/DayFaults.h"

#include "basalt_utilities/LocalTimes.h"
#include "basalt_utilities/Numbers.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace demo {

namespace {

constexpr std::int64_t kDayMs = 86400000;
constexpr double kBaseM = 0.502;
constexpr double kPoleM = 0.2;
constexpr std::size_t kFewest = 20; ///< results that tell which of the two is wrong
constexpr const char* kBaseShift = "base height";
constexpr const char* kPoleShift = "pole height";

using Counts = std::map<std::string, std::size_t>;

/// The results of a base, or of a rover, on a day.
struct Group
{
    std::int64_t day;
    std::string name;
    std::size_t results = 0;
    Counts others{}; ///< by rovers of the base, or bases of the rover

    /// Whether several of the others tell that it is the base, or the rover.
    [[nodiscard]] bool isClear() const
    {
        return others.size() > 1 && std::ranges::all_of(others, [](const auto& other) {
                   return other.second >= kFewest;
               });
    }
};

using Text = std::string SurveyPoint::*;

/// The smallest clear group, so that as few results as possible are wrong.
Group chooseGroup(std::span<SurveyPoint* const> results, Text name, Text other, std::int64_t notOn)
{
    std::map<std::tuple<std::int64_t, std::string>, Group> groups;
    for (const SurveyPoint* const result : results) {
        const std::int64_t day = dayOf(*result);
        const std::string& named = result->*name;
        Group& group = groups.try_emplace({day, named}, Group{day, named}).first->second;
        ++group.results;
        ++group.others[result->*other];
    }
    Group best{};
    for (const auto& [key, group] : groups) {
        if (group.day != notOn && group.isClear() &&
            (best.results == 0 || group.results < best.results))
            best = group;
    }
    return best;
}

bool isOf(const SurveyPoint& result, const Group& group, Text name)
{
    return dayOf(result) == group.day && result.*name == group.name;
}

std::string told(const Group& group, double metres)
{
    return group.name + " on " + dayText(group.day) + ": " + basalt::formatFixed(metres, 3) +
           " m too high";
}

} // namespace

std::int64_t dayOf(const SurveyPoint& result)
{
    return result.dateTime / kDayMs;
}

std::string dayText(std::int64_t day)
{
    constexpr std::size_t kDaySize = 10;
    char text[basalt::LocalTimes::kTextSize];
    basalt::LocalTimes(0).write(text, day * kDayMs);
    return std::string(text, kDaySize);
}

std::vector<PlantedFault> plantDayFaults(std::span<SurveyPoint* const> results)
{
    constexpr Text kBase = &SurveyPoint::baseStationId;
    constexpr Text kRover = &SurveyPoint::instrumentSerialNumber;
    const Group base = chooseGroup(results, kBase, kRover, 0);
    const Group rover = chooseGroup(results, kRover, kBase, base.day);
    for (SurveyPoint* const result : results) {
        if (isOf(*result, base, kBase)) {
            result->elevation += kBaseM;
            result->referenceAltitude += kBaseM;
        }
        if (isOf(*result, rover, kRover)) {
            result->elevation += kPoleM;
            result->antennaHeight -= kPoleM;
        }
    }
    return {{kBaseShift, {}, {}, told(base, kBaseM)}, {kPoleShift, {}, {}, told(rover, kPoleM)}};
}

} // namespace demo
