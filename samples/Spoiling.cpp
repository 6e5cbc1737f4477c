#include "samples/Spoiling.h"

#include "basalt_utilities/Numbers.h"
#include "samples/Crew.h"
#include "samples/Terrain.h"

#include <array>
#include <cmath>
#include <numbers>

namespace demo {

namespace {

constexpr int kFloat = 5; ///< the code of a float solution

std::string words(const char* before, double value, int decimals, const char* after = "")
{
    return before + basalt::formatFixed(value, decimals) + after;
}

/// To the right and left of the line, forward and back along it, and two diagonals.
constexpr std::array<Skid, 6> kDirections{{{1, 0},
                                           {-1, 0},
                                           {0, 1},
                                           {0, -1},
                                           {std::numbers::sqrt2 / 2, std::numbers::sqrt2 / 2},
                                           {-std::numbers::sqrt2 / 2, std::numbers::sqrt2 / 2}}};

std::string spoilPosition(SurveyPoint& point, Random& random)
{
    const Skid& direction = kDirections[random.index(kDirections.size())];
    const double length = random.uniform(1.2, 6);
    const LocalPlace right = toGrid({point.north, point.east});
    const LocalPlace stake =
        moved(right, point.pointMark, length * direction.rightM, length * direction.alongM);
    const PlanePlace plane = toPlane(stake);
    point.north = plane.north;
    point.east = plane.east;
    point.elevation += groundHeight(stake) - groundHeight(right);
    const double off = std::hypot(point.north - point.designNorth, point.east - point.designEast);
    return words("staked ", off, 2, " m from the design position");
}

struct Range
{
    double from;
    double to;
};

/// Makes it a float solution with accuracies from the two ranges.
void makeFloat(SurveyPoint& point, Random& random, const Range& hrmsM, const Range& vrmsM)
{
    point.solutionType = kFloat;
    point.horizontalAccuracy = random.uniform(hrmsM.from, hrmsM.to);
    point.verticalAccuracy = random.uniform(vrmsM.from, vrmsM.to);
    point.remarks = "under trees";
}

std::string spoilHrms(SurveyPoint& point, Random& random)
{
    makeFloat(point, random, {0.55, 0.9}, {0.25, 0.45});
    return words("HRMS ", point.horizontalAccuracy, 4, " m");
}

std::string spoilVrms(SurveyPoint& point, Random& random)
{
    makeFloat(point, random, {0.2, 0.45}, {0.6, 2});
    return words("VRMS ", point.verticalAccuracy, 4, " m");
}

std::string spoilAccuracy(SurveyPoint& point, Random& random)
{
    makeFloat(point, random, {0.6, 1.6}, {0.8, 2.5});
    return words("HRMS ", point.horizontalAccuracy, 4, " m") +
           words(" and VRMS ", point.verticalAccuracy, 4, " m");
}

/// The surveyor enters a wrong antenna height, so that the elevation is wrong too.
std::string enterAntennaHeight(SurveyPoint& point, double heightM)
{
    const double pole = point.antennaHeight;
    point.elevation += pole - heightM;
    point.antennaHeight = heightM;
    return words("antenna height ", heightM, 2, " m") + words(" instead of ", pole, 2, " m");
}

std::string spoilAntennaHigh(SurveyPoint& point, Random& random)
{
    return enterAntennaHeight(point, 2.6 + 0.05 * random.whole(0, 20));
}

std::string spoilAntennaLow(SurveyPoint& point, Random& random)
{
    return enterAntennaHeight(point, 0.05 * random.whole(0, 8));
}

std::string spoilDilution(SurveyPoint& point, Random& random, const Range& hdop, const Range& vdop)
{
    point.hdop = random.uniform(hdop.from, hdop.to);
    point.vdop = random.uniform(vdop.from, vdop.to);
    return words("PDOP ", std::hypot(point.hdop, point.vdop), 2) + words(" HDOP ", point.hdop, 2) +
           words(" VDOP ", point.vdop, 2);
}

std::string spoilPdop(SurveyPoint& point, Random& random)
{
    return spoilDilution(point, random, {1.9, 2.6}, {2.5, 2.9});
}

std::string spoilPdopVdop(SurveyPoint& point, Random& random)
{
    return spoilDilution(point, random, {1.6, 2.6}, {3.2, 4.5});
}

std::string spoilAllDops(SurveyPoint& point, Random& random)
{
    return spoilDilution(point, random, {3.1, 3.8}, {3.4, 5});
}

std::string spoilSatellites(SurveyPoint& point, Random& random)
{
    setSatellites(point, random.whole(4, 5));
    point.remarks = "below a cliff";
    return std::to_string(point.satelliteNumber) + " satellites";
}

/// The height of the station is entered without its decimal point, so that the station seems far
/// away.
std::string spoilReference(SurveyPoint& point, Random& /*random*/)
{
    const double right = point.referenceAltitude;
    point.referenceAltitude = std::round(right * 100);
    return words("height of the station ", point.referenceAltitude, 0, " m") +
           words(" instead of ", right, 2, " m");
}

/// Not a bad position, but the rover did not get the corrections for a fixed solution.
std::string spoilSolution(SurveyPoint& point, Random& random)
{
    makeFloat(point, random, {0.2, 0.4}, {0.25, 0.35});
    return "float solution";
}

/// Both accuracies are within their limits, together they are not.
std::string spoilRms(SurveyPoint& point, Random& random)
{
    makeFloat(point, random, {0.46, 0.49}, {0.46, 0.49});
    return words("RMS ", std::hypot(point.horizontalAccuracy, point.verticalAccuracy), 4, " m");
}

std::string spoilAge(SurveyPoint& point, Random& random)
{
    point.ageOfDiff = random.whole(12, 45);
    point.remarks = "radio link lost";
    return words("corrections ", point.ageOfDiff, 0, " s old");
}

/// The receiver stored only some of the epochs.
std::string spoilEpochs(SurveyPoint& point, Random& random)
{
    point.epochNumber = random.whole(2, 3);
    return std::to_string(point.epochNumber) + " epochs";
}

/// The rover stored ten epochs a second.
std::string spoilOccupation(SurveyPoint& point, Random& random)
{
    const int seconds = random.whole(1, 2);
    point.endTime = point.startTime + std::int64_t(seconds) * 1000;
    point.dateTime = point.endTime;
    return words("occupied for ", seconds, 0, " s");
}

std::string raise(SurveyPoint& point, Random& random, const Range& range)
{
    const double up = random.uniform(range.from, range.to);
    const bool isLow = random.whole(0, 1) == 0;
    point.elevation += isLow ? -up : up;
    return words("elevation ", up, 2, isLow ? " m too low" : " m too high");
}

std::string spoilHeight(SurveyPoint& point, Random& random)
{
    return raise(point, random, {13, 14.5});
}

std::string spoilHeightMuch(SurveyPoint& point, Random& random)
{
    return raise(point, random, {24, 32});
}

/// Measured without a point chosen in the design.
std::string spoilDesign(SurveyPoint& point, Random& /*random*/)
{
    point.designNorth = point.designEast = point.designElevation = 0;
    return "measured without a point of the design";
}

constexpr std::array kSpoilings{
    Spoiling{"too far", 12, spoilPosition},
    Spoiling{"hrms", 6, spoilHrms},
    Spoiling{"vrms", 5, spoilVrms},
    Spoiling{"hrms and vrms", 4, spoilAccuracy},
    Spoiling{"antenna high", 4, spoilAntennaHigh},
    Spoiling{"antenna low", 3, spoilAntennaLow},
    Spoiling{"pdop", 4, spoilPdop},
    Spoiling{"pdop and vdop", 3, spoilPdopVdop},
    Spoiling{"pdop hdop and vdop", 3, spoilAllDops},
    Spoiling{"few satellites", 5, spoilSatellites},
    Spoiling{"reference too far", 4, spoilReference},
    Spoiling{"not fixed", 3, spoilSolution},
    Spoiling{"rms", 2, spoilRms},
    Spoiling{"old corrections", 3, spoilAge},
    Spoiling{"few epochs", 2, spoilEpochs},
    Spoiling{"short occupation", 2, spoilOccupation},
    Spoiling{"height off", 2, spoilHeight},
    Spoiling{"height jump", 2, spoilHeightMuch},
    Spoiling{"no design position", 2, spoilDesign},
};

} // namespace

std::span<const Spoiling> spoilings()
{
    return kSpoilings;
}

} // namespace demo
