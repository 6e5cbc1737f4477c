#pragma once

#include "samples/StakedPoint.h"

#include <cstdint>
#include <vector>

namespace demo {

struct Remeasuring;

/// What a crew does on an evening: it measures some points of the day again.
struct Evening
{
    struct Shot
    {
        const Remeasuring* kind;
        StakedPoint first; ///< the result of the day
    };

    int type = 0;            ///< of the crew's points
    std::int64_t day = 0;    ///< see `dayOf`
    std::size_t results = 0; ///< of the day
    std::vector<Shot> shots{};
    bool isLeftOut = false; ///< the crew goes home

    /// How often points are measured again.
    [[nodiscard]] std::size_t checks() const;
    /// How often they should be.
    [[nodiscard]] std::size_t wanted() const;
};

/// The evenings of all crews.
class CheckShots
{
public:
    void count(const SurveyPoint& result);

    [[nodiscard]] std::vector<Evening>& evenings() { return m_evenings; }
    /// The evening at which most is left to be done; null when all is.
    [[nodiscard]] Evening* next();

private:
    std::vector<Evening> m_evenings;
};

} // namespace demo
