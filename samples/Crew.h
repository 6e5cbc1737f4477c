#pragma once

#include "model/SurveyPoint.h"
#include "samples/FieldClock.h"
#include "samples/Random.h"

namespace demo {

/// Who stakes, and with what.
struct Equipment
{
    const char* surveyor;
    const char* instrument;
    const char* serialNumber;
    double poleM; ///< the antenna above the ground
};

/// A crew that goes from point to point and measures, as good as everything goes well.
class Crew
{
public:
    /// \param camp where its first day begins
    Crew(const Equipment& equipment, const LocalPlace& camp, Random& random);

    /// Goes to the stake of `design` and measures it. What follows from these values is left to
    /// `ResultCompleter`.
    [[nodiscard]] SurveyPoint measure(const DesignPoint& design, const LocalPlace& stake);

private:
    void observe(SurveyPoint& point);

    const Equipment& m_equipment;
    Random& m_random;
    FieldClock m_clock;
};

/// Sets the satellites of a result: how many, and of which systems.
void setSatellites(SurveyPoint& point, int count);

} // namespace demo
