#pragma once

#include "samples/Grid.h"

#include <cstdint>

namespace demo {

/// The time of a crew on its way through working days, as the clocks of the survey show it.
class FieldClock
{
public:
    /// On the morning of the first day.
    /// \param place where the first day begins
    explicit FieldClock(const LocalPlace& place) : m_place(place) {}

    /// Goes there, on foot or by car. After working hours it is the next morning; at noon there is
    /// a break.
    void goTo(const LocalPlace& place);

    void spend(int seconds) { m_second += seconds; }

    /// Milliseconds since 1970 on the survey's clocks, whole seconds.
    [[nodiscard]] std::int64_t now() const;

private:
    LocalPlace m_place;
    int m_day = 0;
    double m_second = kMorning; ///< of the day
    bool m_hadBreak = false;

    static constexpr double kMorning = 7.5 * 3600;
};

} // namespace demo
