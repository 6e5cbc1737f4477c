#include "basalt_utilities/LocalTimes.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <ctime>
#include <limits>

namespace basalt {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::int64_t kDay = 86400;
/// The changes of a zone are searched period by period. Within one step there is one at most.
constexpr std::int64_t kPeriod = std::int64_t(1) << 24U;
constexpr std::int64_t kStep = std::int64_t(1) << 14U;
/// The periods that are remembered last from 1895 to 2215; no survey result lies outside.
constexpr std::int64_t kPeriods = 461;
constexpr std::int64_t kFirstPeriod = -141;

std::int64_t floorDivide(std::int64_t value, std::int64_t by)
{
    return value / by - (value % by < 0 ? 1 : 0);
}

std::int64_t systemOffset(std::int64_t utc)
{
    const std::time_t time = utc;
    std::tm civil{};
    return ::localtime_r(&time, &civil) == nullptr ? 0 : civil.tm_gmtoff;
}

/// The first second after `from` that has the offset of `to`.
std::int64_t changeBetween(std::int64_t from, std::int64_t to, std::int64_t offsetAtTo)
{
    while (to - from > 1) {
        const std::int64_t middle = from + (to - from) / 2;
        (systemOffset(middle) == offsetAtTo ? to : from) = middle;
    }
    return to;
}

void writeDigits(char* to, int count, unsigned value)
{
    for (char* place = to + count; place != to; value /= 10)
        *--place = static_cast<char>('0' + value % 10);
}

/// The value of `count` digits; -1 when one of the characters is no digit.
int readDigits(const char* from, int count)
{
    int value = 0;
    for (const char* place = from; place != from + count; ++place) {
        if (*place < '0' || *place > '9')
            return -1;
        value = value * 10 + (*place - '0');
    }
    return value;
}

/// Writes "yyyy/MM/dd"; an empty text for a year that has not four digits.
void writeDay(char* to, std::int64_t day)
{
    const year_month_day date{sys_days{days{day}}};
    const int year = static_cast<int>(date.year());
    *to = '\0';
    if (year < 0 || year > 9999)
        return;
    std::memcpy(to, "0000/00/00", 11);
    writeDigits(to, 4, static_cast<unsigned>(year));
    writeDigits(to + 5, 2, static_cast<unsigned>(date.month()));
    writeDigits(to + 8, 2, static_cast<unsigned>(date.day()));
}

/// The seconds since 1970 that a clock shows, whatever its zone.
std::optional<std::int64_t> readClock(std::string_view text)
{
    if (text.size() != LocalTimes::kTextSize || text[4] != '/' || text[7] != '/' ||
        text[10] != ' ' || text[13] != ':' || text[16] != ':')
        return std::nullopt;
    const char* const c = text.data();
    const int year = readDigits(c, 4);
    const int month = readDigits(c + 5, 2);
    const int day = readDigits(c + 8, 2);
    const int hour = readDigits(c + 11, 2);
    const int minute = readDigits(c + 14, 2);
    const int second = readDigits(c + 17, 2);
    if (std::min({year, month, day, hour, minute, second}) < 0 || hour > 23 || minute > 59 ||
        second > 59)
        return std::nullopt;
    const year_month_day date{std::chrono::year(year),
                              std::chrono::month(static_cast<unsigned>(month)),
                              std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok())
        return std::nullopt;
    return std::int64_t(sys_days(date).time_since_epoch().count()) * kDay +
           (std::int64_t(hour) * 60 + minute) * 60 + second;
}

} // namespace

LocalTimes::LocalTimes()
{
    ::tzset();
}

LocalTimes::LocalTimes(int hours)
{
    m_last = {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max(),
              std::int64_t(hours) * 3600};
}

char* LocalTimes::write(char* to, std::int64_t milliseconds)
{
    const std::int64_t local = clockSeconds(milliseconds);
    const std::int64_t day = floorDivide(local, kDay);
    if (!m_hasDay || day != m_day) {
        writeDay(m_dayText, std::clamp<std::int64_t>(day, -1000000, 10000000));
        m_day = day;
        m_hasDay = true;
    }
    if (m_dayText[0] == '\0')
        return to;
    const auto second = static_cast<unsigned>(local - day * kDay);
    std::memcpy(to, m_dayText, 10);
    constexpr std::string_view kClock = " 00:00:00";
    std::copy(kClock.begin(), kClock.end(), to + 10);
    writeDigits(to + 11, 2, second / 3600);
    writeDigits(to + 14, 2, second / 60 % 60);
    writeDigits(to + 17, 2, second % 60);
    return to + kTextSize;
}

std::optional<std::int64_t> LocalTimes::read(std::string_view text)
{
    const auto local = readClock(text);
    if (!local)
        return std::nullopt;
    return toUtc(*local) * 1000;
}

std::int64_t LocalTimes::clockSeconds(std::int64_t milliseconds)
{
    const std::int64_t utc = floorDivide(milliseconds, 1000);
    return utc + offsetAt(utc);
}

std::int64_t LocalTimes::offsetAt(std::int64_t utc)
{
    if (utc >= m_last.from && utc < m_last.to)
        return m_last.offset;
    const std::int64_t period = floorDivide(utc, kPeriod);
    if (period < kFirstPeriod || period >= kFirstPeriod + kPeriods)
        return systemOffset(utc);
    for (const Span& span : spansOf(period)) {
        if (utc < span.to) {
            m_last = span;
            break;
        }
    }
    return m_last.offset;
}

std::int64_t LocalTimes::toUtc(std::int64_t local)
{
    // Two days cover any offset: no change is near.
    if (local - kDay * 2 >= m_last.from && local + kDay * 2 < m_last.to)
        return local - m_last.offset;
    // A change may be near: try the offset before it, then the one after it.
    const std::int64_t before = offsetAt(local - kDay);
    if (offsetAt(local - before) == before)
        return local - before;
    const std::int64_t after = offsetAt(local + kDay);
    return offsetAt(local - after) == after ? local - after : local - before;
}

const LocalTimes::Spans& LocalTimes::spansOf(std::int64_t period)
{
    const auto [found, isNew] = m_periods.try_emplace(period);
    Spans& spans = found->second;
    if (!isNew)
        return spans;
    const std::int64_t start = period * kPeriod;
    spans.push_back({start, start + kPeriod, systemOffset(start)});
    for (std::int64_t time = start + kStep; time <= start + kPeriod; time += kStep) {
        const std::int64_t end = std::min(time, start + kPeriod - 1);
        const std::int64_t offset = systemOffset(end);
        if (offset == spans.back().offset)
            continue;
        spans.back().to = changeBetween(time - kStep, end, offset);
        spans.push_back({spans.back().to, start + kPeriod, offset});
    }
    return spans;
}

} // namespace basalt
