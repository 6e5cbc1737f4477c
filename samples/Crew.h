#pragma once

#include "model/SurveyPoint.h"
#include "samples/FieldClock.h"
#include "samples/Random.h"

#include <vector>

namespace demo {

/// A surveyor and the instrument that he works with.
struct Equipment
{
    const char* surveyor;
    const char* instrument;
    const char* serialNumber;
    double poleM; ///< height of the antenna above the ground
};

/// A crew that goes from point to point and measures good results.
class Crew
{
public:
    /// \param camp where it starts on the first day
    Crew(const Equipment& equipment, const LocalPlace& camp, Random& random);

    /// Goes to the stake of `design` and measures it. `ResultCompleter` computes the other values.
    [[nodiscard]] SurveyPoint measure(const DesignPoint& design, const LocalPlace& stake);

    /// Back to the evening of a day, to measure points again when the others are done.
    /// \param day  counted from the first one, which is 0
    void workLateOn(int day);

private:
    void observe(SurveyPoint& point);

    const Equipment& m_equipment;
    Random& m_random;
    FieldClock m_clock;
    std::vector<FieldClock> m_evenings; ///< of the days before today
};

/// Sets the number of satellites of a result and shares them among the satellite systems.
void setSatellites(SurveyPoint& point, int count);

} // namespace demo
