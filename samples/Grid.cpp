#include "samples/Grid.h"

#include "samples/Terrain.h"

#include <cmath>
#include <numbers>

namespace demo {

namespace {

constexpr int kLines = 20;
constexpr int kPoints = 100;
constexpr int kLineStep = 10;
constexpr int kFirstPoint = 1001;
constexpr double kLineDistanceM = 200;
constexpr double kPointDistanceM = 40;
constexpr PlanePlace kOrigin{4560000, 509000};
constexpr double kReceiverAzimuthDeg = 72;
constexpr double kSourceAzimuthDeg = 342; ///< 90 degrees to the left of it

/// The lines of one type: where they begin and how they are numbered.
struct LineKind
{
    int type = 0;
    int firstLine = 0;
    LocalPlace first; ///< first point of the first line
    LocalPlace lineStep;
    LocalPlace pointStep;
};

// A source line crosses a receiver line midway between two receivers.
constexpr LineKind kKinds[] = {
    {kReceiver, 1000, {0, 0}, {0, kLineDistanceM}, {kPointDistanceM, 0}},
    {kSource, 5000, {100, -60}, {kLineDistanceM, 0}, {0, kPointDistanceM}},
};

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

DesignPoint designPoint(const LineKind& kind, int line, int point)
{
    const LocalPlace place{kind.first.x + line * kind.lineStep.x + point * kind.pointStep.x,
                           kind.first.y + line * kind.lineStep.y + point * kind.pointStep.y};
    const PlanePlace plane = toPlane(place);
    DesignPoint design;
    design.lineNumber = std::to_string(kind.firstLine + line * kLineStep);
    design.pointNumber = design.lineNumber + std::to_string(kFirstPoint + point);
    design.north = plane.north;
    design.east = plane.east;
    design.elevation = groundHeight(place);
    design.azimuth = azimuthDeg(kind.type);
    design.type = kind.type;
    return design;
}

} // namespace

PlanePlace toPlane(const LocalPlace& place)
{
    const double sine = std::sin(radians(kReceiverAzimuthDeg));
    const double cosine = std::cos(radians(kReceiverAzimuthDeg));
    return {kOrigin.north + place.x * cosine + place.y * sine,
            kOrigin.east + place.x * sine - place.y * cosine};
}

LocalPlace toGrid(const PlanePlace& place)
{
    const double sine = std::sin(radians(kReceiverAzimuthDeg));
    const double cosine = std::cos(radians(kReceiverAzimuthDeg));
    const double north = place.north - kOrigin.north;
    const double east = place.east - kOrigin.east;
    return {north * cosine + east * sine, north * sine - east * cosine};
}

double distance(const LocalPlace& a, const LocalPlace& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

double azimuthDeg(int type)
{
    return type == kReceiver ? kReceiverAzimuthDeg : kSourceAzimuthDeg;
}

LocalPlace moved(const LocalPlace& place, int type, double rightM, double alongM)
{
    if (type == kReceiver)
        return {place.x + alongM, place.y - rightM};
    return {place.x + rightM, place.y + alongM};
}

std::vector<DesignPoint> designGrid()
{
    std::vector<DesignPoint> grid;
    grid.reserve(std::size(kKinds) * kLines * kPoints);
    for (const LineKind& kind : kKinds) {
        for (int line = 0; line < kLines; ++line) {
            for (int point = 0; point < kPoints; ++point)
                grid.push_back(designPoint(kind, line, point));
        }
    }
    return grid;
}

} // namespace demo
