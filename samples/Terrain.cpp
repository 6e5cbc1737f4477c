#include "samples/Terrain.h"

#include <cmath>

namespace demo {

namespace {

constexpr double kRiverHalfWidthM = 32;
constexpr double kLongestSkidM = 27.5;
constexpr double kSkidStepM = 2.5;
constexpr double kSkidClearanceM = 3;

// The village: rows of equal houses with lanes between them. No design point lies on the edge of a
// house, so rounding cannot change where the obstacles are.
constexpr LocalPlace kVillageStart{2473.7, 2183.3};
constexpr LocalPlace kVillageEnd{2923.7, 2563.3};
constexpr LocalPlace kPlot{55, 42};
constexpr LocalPlace kHouse{38, 26};

/// The distance of a place from the middle of the river, metres.
double riverDistance(const LocalPlace& place)
{
    const double middle = 1500 + 0.35 * place.y + 180 * std::sin(place.y / 700);
    const double slope = 0.35 + 180.0 / 700 * std::cos(place.y / 700);
    return std::fabs(place.x - middle) / std::hypot(1, slope);
}

/// Whether a coordinate lies in a house of its row or nearer to one than the clearance.
/// \param offset from the edge of the village
bool isBuilt(double offset, double plot, double house, double clearanceM)
{
    const double inPlot = std::fmod(offset + clearanceM, plot);
    return inPlot < house + 2 * clearanceM;
}

bool isHouse(const LocalPlace& place, double clearanceM)
{
    const LocalPlace offset{place.x - kVillageStart.x, place.y - kVillageStart.y};
    const LocalPlace size{kVillageEnd.x - kVillageStart.x, kVillageEnd.y - kVillageStart.y};
    if (offset.x < -clearanceM || offset.x > size.x + clearanceM || offset.y < -clearanceM ||
        offset.y > size.y + clearanceM)
        return false;
    return isBuilt(offset.x, kPlot.x, kHouse.x, clearanceM) &&
           isBuilt(offset.y, kPlot.y, kHouse.y, clearanceM);
}

} // namespace

double groundHeight(const LocalPlace& place)
{
    const auto& [x, y] = place;
    const double hills = 45 * std::sin(x / 1300 + 0.6) * std::cos(y / 1700) +
                         28 * std::sin((x + 1.4 * y) / 900) +
                         9 * std::sin(x / 310) * std::sin(y / 270);
    const double fromRiver = riverDistance(place) / 260;
    return 640 + hills - 22 * std::exp(-fromRiver * fromRiver);
}

Obstacle obstacleAt(const LocalPlace& place, double clearanceM)
{
    if (riverDistance(place) < kRiverHalfWidthM + clearanceM)
        return Obstacle::River;
    return isHouse(place, clearanceM) ? Obstacle::Houses : Obstacle::None;
}

std::optional<Skid> shortestSkid(const LocalPlace& place, int type)
{
    for (int step = 1; step * kSkidStepM <= kLongestSkidM; ++step) {
        const double length = step * kSkidStepM;
        for (const Skid& skid :
             {Skid{length, 0}, Skid{-length, 0}, Skid{0, length}, Skid{0, -length}}) {
            const LocalPlace there = moved(place, type, skid.rightM, skid.alongM);
            if (obstacleAt(there, kSkidClearanceM) == Obstacle::None)
                return skid;
        }
    }
    return std::nullopt;
}

} // namespace demo
