#include "samples/FieldClock.h"

#include <chrono>

namespace demo {

namespace {

constexpr double kNoon = 12.0 * 3600;
constexpr double kBreak = 45.0 * 60;
constexpr double kEvening = 17.5 * 3600;
constexpr double kFarthestWalkM = 250;

double secondsFor(double metres)
{
    return metres < kFarthestWalkM ? metres / 0.9 : 120 + metres / 6;
}

} // namespace

void FieldClock::goTo(const LocalPlace& place)
{
    const double way = secondsFor(distance(m_place, place));
    m_place = place;
    m_second += way;
    if (m_second > kNoon && !m_hadBreak) {
        m_second += kBreak;
        m_hadBreak = true;
    }
    if (m_second > kEvening && !m_isLate) {
        ++m_day;
        m_second = kMorning + way;
        m_hadBreak = false;
    }
}

std::int64_t FieldClock::now() const
{
    using namespace std::chrono;
    constexpr sys_days kFirstDay = 2025y / May / 12;
    const auto day = duration_cast<seconds>((kFirstDay + days(m_day)).time_since_epoch());
    return (day.count() + static_cast<std::int64_t>(m_second)) * 1000;
}

} // namespace demo
