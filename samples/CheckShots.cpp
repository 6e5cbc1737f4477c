#include "samples/CheckShots.h"

#include "samples/DayFaults.h"
#include "samples/Remeasuring.h"

#include <algorithm>

namespace demo {

std::size_t Evening::checks() const
{
    std::size_t checks = 0;
    for (const Shot& shot : shots)
        checks += static_cast<std::size_t>(shot.kind->times);
    return checks;
}

std::size_t Evening::wanted() const
{
    constexpr std::size_t kPercent = 3; // as a new project wants it
    constexpr std::size_t kFewest = 2;
    return std::max(kFewest, (results * kPercent + 99) / 100);
}

void CheckShots::count(const SurveyPoint& result)
{
    const std::int64_t day = dayOf(result);
    const auto found = std::ranges::find_if(m_evenings, [&](const Evening& evening) {
        return evening.type == result.pointMark && evening.day == day;
    });
    if (found == m_evenings.end())
        m_evenings.push_back({result.pointMark, day, 1});
    else
        ++found->results;
}

Evening* CheckShots::next()
{
    Evening* next = nullptr;
    std::ptrdiff_t most = 0;
    for (Evening& evening : m_evenings) {
        const auto left = static_cast<std::ptrdiff_t>(evening.wanted()) -
                          static_cast<std::ptrdiff_t>(evening.checks());
        if (left <= most || evening.isLeftOut)
            continue;
        most = left;
        next = &evening;
    }
    return next;
}

} // namespace demo
