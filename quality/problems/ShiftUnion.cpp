#include "quality/problems/ShiftUnion.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace {

using Cause = GroupShift::Cause;

constexpr std::int64_t kNoDay = statistics::KeyValue::kNoNumber;

bool isPole(const GroupShift& shift)
{
    return shift.cause == Cause::Pole;
}

bool areAlike(const GroupShift& a, const GroupShift& b)
{
    constexpr double kSameShiftM = 0.1;
    return std::hypot(a.eastM - b.eastM, a.northM - b.northM, a.heightM - b.heightM) <= kSameShiftM;
}

/// Adds what is shifted by another one to a shift, which is then off by the mean.
void add(GroupShift& shift, const GroupShift& other)
{
    const double share =
        static_cast<double>(other.shared) / static_cast<double>(shift.shared + other.shared);
    const auto widen = [share](double& knownM, double otherM, double apartM) {
        knownM = std::max(knownM + apartM * share, otherM + apartM * (1 - share));
    };
    widen(shift.planeKnownM, other.planeKnownM,
          std::hypot(shift.eastM - other.eastM, shift.northM - other.northM));
    widen(shift.heightKnownM, other.heightKnownM, std::fabs(shift.heightM - other.heightM));
    for (double GroupShift::*length :
         {&GroupShift::eastM, &GroupShift::northM, &GroupShift::heightM})
        shift.*length += (other.*length - shift.*length) * share;
    shift.results += other.results;
    shift.shared += other.shared;
    shift.firstMs = std::min(shift.firstMs, other.firstMs);
    shift.lastDay = std::max(shift.lastDay, other.lastDay);
}

/// The bases of the survey or of a day.
bool areAllAlike(const std::vector<GroupShift>& shifts, const std::vector<ComparedGroup>& compared,
                 std::int64_t day)
{
    const auto isBase = [&](const ComparedGroup& group) {
        return !group.isRover && (day == kNoDay || group.day == day);
    };
    const auto bases = std::ranges::count_if(compared, isBase);
    const GroupShift* first = nullptr;
    std::ptrdiff_t found = 0;
    for (const GroupShift& shift : shifts) {
        if (day != kNoDay && shift.day != day)
            continue;
        if (first == nullptr)
            first = &shift;
        if (isPole(shift) || !areAlike(*first, shift))
            return false;
        ++found;
    }
    return found > 1 && found == bases;
}

/// Puts one shift of the survey in place of those of a day, or of all.
void uniteBases(std::vector<GroupShift>& shifts, std::int64_t day)
{
    const auto isOne = [&](const GroupShift& shift) { return day == kNoDay || shift.day == day; };
    const auto first = std::ranges::find_if(shifts, isOne);
    GroupShift all = *first;
    for (auto each = std::next(first); each != shifts.end(); ++each) {
        if (isOne(*each))
            add(all, *each);
    }
    all.cause = Cause::Survey;
    all.day = all.lastDay = day;
    all.base = all.rover = std::string();
    std::erase_if(shifts, isOne);
    shifts.push_back(std::move(all));
}

/// Unites a shift with the next ones of the same base or rover, as long as it worked on no day
/// between them.
class DayUnion
{
public:
    explicit DayUnion(const std::vector<ComparedGroup>& compared)
    {
        for (const ComparedGroup& group : compared)
            m_work.insert({{group.isRover, group.name}, group.day});
    }

    [[nodiscard]] std::vector<GroupShift> unite(std::vector<GroupShift> shifts) const
    {
        std::vector<GroupShift> united;
        std::ranges::stable_sort(shifts, {}, &GroupShift::day);
        for (GroupShift& shift : shifts) {
            const auto before = std::ranges::find_if(
                united, [&](const GroupShift& each) { return continues(each, shift); });
            if (before == united.end()) {
                united.push_back(std::move(shift));
                continue;
            }
            add(*before, shift);
            if (before->rover != shift.rover || before->cause != shift.cause) {
                before->cause = Cause::Base; // another rover has shown the same
                before->rover.clear();
            }
        }
        return united;
    }

private:
    using Name = std::pair<bool, std::string>; ///< whether it is a rover

    [[nodiscard]] static Name nameOf(const GroupShift& shift)
    {
        return {isPole(shift), isPole(shift) ? shift.rover : shift.base};
    }

    [[nodiscard]] bool continues(const GroupShift& before, const GroupShift& shift) const
    {
        if (before.cause == Cause::Survey || shift.cause == Cause::Survey ||
            nameOf(before) != nameOf(shift) || before.lastDay == kNoDay ||
            before.hasPlane() != shift.hasPlane() || before.hasHeight() != shift.hasHeight() ||
            !areAlike(before, shift))
            return false;
        const auto next = m_work.upper_bound({nameOf(before), before.lastDay});
        return next != m_work.end() && *next == std::pair(nameOf(shift), shift.day);
    }

    std::set<std::pair<Name, std::int64_t>> m_work;
};

} // namespace

bool areAllAlike(const std::vector<GroupShift>& shifts, const std::vector<ComparedGroup>& compared)
{
    return areAllAlike(shifts, compared, kNoDay);
}

void uniteShifts(std::vector<GroupShift>& shifts, const std::vector<ComparedGroup>& compared)
{
    if (areAllAlike(shifts, compared, kNoDay))
        return uniteBases(shifts, kNoDay);
    std::set<std::int64_t> days;
    for (const GroupShift& shift : shifts)
        days.insert(shift.day);
    for (const std::int64_t day : days) {
        if (day != kNoDay && areAllAlike(shifts, compared, day))
            uniteBases(shifts, day);
    }
    shifts = DayUnion(compared).unite(std::move(shifts));
}
