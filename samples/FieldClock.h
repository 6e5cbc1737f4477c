#pragma once

#include "samples/Grid.h"

#include <cstdint>

namespace demo {

/// The time of a crew while it works, as the clocks of the survey show it.
class FieldClock
{
public:
    /// Starts on the morning of the first day.
    /// \param place where the crew is then
    explicit FieldClock(const LocalPlace& place) : m_place(place) {}

    /// Goes to a place, on foot or by car, with a break at noon. When it would arrive after working
    /// hours, it arrives on the next morning.
    void goTo(const LocalPlace& place);

    /// From now on work goes on after hours, until all that was left for this evening is done.
    void workLate() { m_isLate = true; }

    void spend(int seconds) { m_second += seconds; }

    /// 0 is the first one.
    [[nodiscard]] int day() const { return m_day; }

    /// Milliseconds since 1970 on the survey's clocks, in whole seconds.
    [[nodiscard]] std::int64_t now() const;

private:
    LocalPlace m_place;
    int m_day = 0;
    double m_second = kMorning; ///< since midnight
    bool m_hadBreak = false;
    bool m_isLate = false;

    static constexpr double kMorning = 7.5 * 3600;
};

} // namespace demo
