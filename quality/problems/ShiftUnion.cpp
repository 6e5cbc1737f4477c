#include "quality/problems/ShiftUnion.h"

#include "quality/problems/Median.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <utility>

namespace {

using Cause = GroupShift::Cause;

constexpr std::int64_t kNoDay = statistics::KeyValue::kNoNumber;

bool isPole(const GroupShift& shift)
{
    return shift.cause == Cause::Pole;
}

constexpr double kSameShiftM = 0.1;

double apartM(const GroupShift& a, const GroupShift& b)
{
    return std::hypot(a.eastM - b.eastM, a.northM - b.northM, a.heightM - b.heightM);
}

bool areAlike(const GroupShift& a, const GroupShift& b)
{
    return apartM(a, b) <= kSameShiftM;
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

/// Their median, and how far the shifts of all bases may be from it. Those of a survey differ where
/// one of two coordinate systems is tilted; on a day, two errors that differ are two.
std::pair<GroupShift, double> middleOf(const std::vector<const GroupShift*>& shifts, bool isOfDay)
{
    GroupShift middle;
    for (double GroupShift::*length :
         {&GroupShift::eastM, &GroupShift::northM, &GroupShift::heightM}) {
        std::vector<double> lengths;
        lengths.reserve(shifts.size());
        for (const GroupShift* const shift : shifts)
            lengths.push_back(shift->*length);
        middle.*length = medianOf(lengths);
    }
    const double halfM = apartM(middle, {}) / 2;
    return {middle, isOfDay ? kSameShiftM : std::max(kSameShiftM, halfM)};
}

/// The bases of the survey or of a day.
bool areAllAlike(const std::vector<GroupShift>& shifts, const std::vector<ComparedGroup>& compared,
                 std::int64_t day)
{
    const bool isOfDay = day != kNoDay;
    const auto bases = std::ranges::count_if(compared, [&](const ComparedGroup& group) {
        return !group.isRover && (!isOfDay || group.day == day);
    });
    std::vector<const GroupShift*> found;
    for (const GroupShift& shift : shifts) {
        if (!isOfDay || shift.day == day)
            found.push_back(&shift);
    }
    if (found.size() < 2 || std::ssize(found) != bases)
        return false;
    const auto [middle, withinM] = middleOf(found, isOfDay);
    return std::ranges::all_of(found, [&middle = middle, withinM = withinM](const auto* shift) {
        return !isPole(*shift) && apartM(middle, *shift) <= withinM;
    });
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
