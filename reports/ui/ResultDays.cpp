#include "reports/ui/ResultDays.h"

#include "exchange/ShownTimes.h"
#include "lum_sdk/Text.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace {

constexpr std::int64_t kNoDay = std::numeric_limits<std::int64_t>::min();

/// In days since 1970; `kNoDay` without a time.
std::int64_t dayOf(std::int64_t milliseconds, basalt::LocalTimes& times)
{
    constexpr std::int64_t kDaySeconds = 86400;
    if (milliseconds == 0)
        return kNoDay;
    const std::int64_t seconds = times.clockSeconds(milliseconds);
    return (seconds - (seconds < 0 ? kDaySeconds - 1 : 0)) / kDaySeconds;
}

} // namespace

ResultDays::ResultDays(const SurveyPoints& points) : m_total(points.pointCount())
{
    basalt::LocalTimes times = shownTimes();
    std::unordered_map<std::string, std::map<std::int64_t, std::size_t>> counts;
    for (const auto& [number, line] : points) {
        for (const SurveyPoint& point : line)
            ++counts[point.surveyor][dayOf(point.dateTime, times)];
    }
    for (const auto& [surveyor, days] : counts) {
        DayCounts& mine = m_counts[lum::toQString(surveyor)];
        for (const auto& [day, count] : days) {
            const QDate date = day == kNoDay ? QDate() : QDate(1970, 1, 1).addDays(day);
            mine[date] += count;
            if (!date.isValid())
                continue;
            m_first = m_first.isValid() ? std::min(m_first, date) : date;
            m_last = m_last.isValid() ? std::max(m_last, date) : date;
        }
    }
    if (!m_last.isValid())
        m_first = m_last = QDate::currentDate();
}

std::size_t ResultDays::count(const QString& surveyor, const DaySpan& days) const
{
    std::size_t count = 0;
    const DayCounts counts = m_counts.value(surveyor);
    for (const auto& [day, results] : counts) {
        if (days.isAll() || (day.isValid() && day >= days.first && day <= days.last))
            count += results;
    }
    return count;
}
