#include "samples/Remeasuring.h"

#include "basalt_utilities/Numbers.h"

#include <array>
#include <cmath>

namespace demo {

namespace {

constexpr const char* kResurveyLetter = "F";
constexpr const char* kRepeatLetter = "C";
constexpr int kPlainSurvey = 1; ///< SurveyPoint::measureMode
constexpr int kMistyped = 400;  ///< added to a point number; no design point has the sum

std::string asResurvey(SurveyPoint& again, const SurveyPoint& first, Random& /*random*/)
{
    again.pointNumber = first.pointNumber + kResurveyLetter;
    return "of " + first.pointNumber;
}

/// Moves the new result beyond the tolerances.
std::string moveOff(SurveyPoint& again, const SurveyPoint& first, Random& random)
{
    const double length = random.uniform(0.06, 0.12);
    // Towards the design position: the other way it would be too far from the design as well.
    again.north -= std::copysign(length, first.north - first.designNorth);
    again.elevation += random.uniform(-0.2, 0.2);
    return basalt::formatFixed(again.north - first.north, 3) + " m north " +
           basalt::formatFixed(again.east - first.east, 3) + " m east " +
           basalt::formatFixed(again.elevation - first.elevation, 3) + " m up";
}

std::string asBadResurvey(SurveyPoint& again, const SurveyPoint& first, Random& random)
{
    again.pointNumber = first.pointNumber + kResurveyLetter;
    return moveOff(again, first, random);
}

/// Its height is out of range under the right number, too.
std::string asOrphan(SurveyPoint& again, const SurveyPoint& first, Random& /*random*/)
{
    constexpr double kHigherM = 0.06;
    again.elevation += kHigherM;
    again.pointNumber = std::to_string(std::stoi(first.pointNumber) + kMistyped) + kResurveyLetter;
    return "of " + first.pointNumber + " with a mistyped number and too high";
}

std::string asRepeat(SurveyPoint& again, const SurveyPoint& first, Random& /*random*/)
{
    again.pointNumber = kRepeatLetter + first.pointNumber;
    again.measureMode = kPlainSurvey;
    return "of " + first.pointNumber;
}

std::string asBadRepeat(SurveyPoint& again, const SurveyPoint& first, Random& random)
{
    const std::string detail = asRepeat(again, first, random);
    return detail + ": " + moveOff(again, first, random);
}

constexpr std::array kRemeasurings{
    Remeasuring{"resurvey bad", 6, 1, asBadResurvey},
    Remeasuring{"resurvey orphan", 4, 1, asOrphan},
    Remeasuring{"repeat", 14, 1, asRepeat},
    Remeasuring{"repeat bad", 2, 1, asBadRepeat},
    Remeasuring{"repeat", 4, 2, asRepeat},
};

constexpr Remeasuring kGoodResurvey{"resurvey good", 1, 1, asResurvey};

} // namespace

std::span<const Remeasuring> remeasurings()
{
    return kRemeasurings;
}

const Remeasuring& goodResurvey()
{
    return kGoodResurvey;
}

} // namespace demo
