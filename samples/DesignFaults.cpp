#include "samples/DesignFaults.h"

#include "basalt_utilities/Numbers.h"
#include "samples/Random.h"
#include "samples/Terrain.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <utility>

namespace demo {

namespace {

constexpr std::size_t kStretch = 9; ///< points of a line, the fault is in the middle
constexpr std::size_t kMiddle = kStretch / 2;
constexpr std::size_t kInfill = 4;
constexpr double kRoomM = 55; ///< without obstacles around each point, more than a point is moved

using Stretch = std::span<DesignPoint, kStretch>;

LocalPlace placeOf(const DesignPoint& point)
{
    return toGrid({point.north, point.east});
}

void moveTo(DesignPoint& point, const LocalPlace& place)
{
    const PlanePlace plane = toPlane(place);
    point.north = plane.north;
    point.east = plane.east;
    point.elevation = groundHeight(place);
}

std::string moveBy(DesignPoint& point, double rightM, double alongM)
{
    moveTo(point, moved(placeOf(point), point.type, rightM, alongM));
    return basalt::formatFixed(rightM + alongM, 0) +
           (rightM != 0 ? " m beside its place" : " m along from its place");
}

std::string spoilSpacing(Stretch points)
{
    return moveBy(points[kMiddle], 0, 20);
}

std::string spoilPlace(Stretch points)
{
    return moveBy(points[kMiddle], 30, 0);
}

/// Two digits of the azimuth change places: 72 or 342.
std::string spoilAzimuth(Stretch points)
{
    DesignPoint& point = points[kMiddle];
    const double right = point.azimuth;
    point.azimuth = point.type == kReceiver ? 27 : 234;
    return "azimuth " + basalt::formatFixed(point.azimuth, 0) + " instead of " +
           basalt::formatFixed(right, 0);
}

void exchangePlaces(DesignPoint& a, DesignPoint& b)
{
    std::swap(a.north, b.north);
    std::swap(a.east, b.east);
    std::swap(a.elevation, b.elevation);
}

std::string spoilOrder(Stretch points)
{
    exchangePlaces(points[kMiddle], points[kMiddle + 1]);
    return "in the place of " + points[kMiddle + 1].pointNumber + " and the other way round";
}

/// A row of the planner's table that was copied, and not changed.
std::string spoilCopy(Stretch points)
{
    moveTo(points[kMiddle], placeOf(points[kMiddle + 1]));
    return "in the place of " + points[kMiddle + 1].pointNumber;
}

std::string spoilHeight(Stretch points)
{
    DesignPoint& point = points[kMiddle];
    const double right = point.elevation;
    point.elevation += 40;
    return "elevation " + basalt::formatFixed(point.elevation, 2) + " m instead of " +
           basalt::formatFixed(right, 2) + " m";
}

/// The last points of a line go on with later numbers.
std::string spoilNumbers(Stretch points)
{
    constexpr int kSkipped = 5;
    for (DesignPoint& point : points.last<kStretch - kMiddle - 1>())
        point.pointNumber = std::to_string(std::stoi(point.pointNumber) + kSkipped);
    return "next to " + points[kMiddle + 1].pointNumber;
}

struct Planting
{
    const char* kind = nullptr;
    std::string (*spoil)(Stretch points) =
        nullptr;          ///< \returns what "faults.csv" says about the middle one
    bool isAtEnd = false; ///< of the line
};

constexpr std::array kPlantings{
    Planting{"design spacing", spoilSpacing},       Planting{"design spike", spoilPlace},
    Planting{"design azimuth", spoilAzimuth},       Planting{"design order", spoilOrder},
    Planting{"design in one place", spoilCopy},     Planting{"design height", spoilHeight},
    Planting{"design numbers", spoilNumbers, true},
};

class Planter
{
public:
    Planter(std::vector<DesignPoint>& design, std::uint64_t seed) : m_design(design), m_random(seed)
    {
        m_result.isTouched.resize(design.size());
        for (std::size_t i = 0; i < design.size(); ++i) {
            if (i == 0 || design[i].lineNumber != design[i - 1].lineNumber)
                m_lines.push_back({i, 0});
            ++m_lines.back().count;
        }
        for (std::size_t i = 0; i + 1 < m_lines.size(); ++i) // its end is left out
            m_lines[i].isUsed = isReceiver(m_lines[i]) && !isReceiver(m_lines[i + 1]);
    }

    void plant(const Planting& planting)
    {
        const std::size_t at = chooseStretch([](const Line&) { return true; }, planting.isAtEnd);
        const Stretch points(m_design.data() + at, kStretch);
        const DesignPoint& middle = points[kMiddle];
        std::string what = planting.spoil(points);
        note(planting.kind, middle, std::move(what));
    }

    /// The last points of one line are planned between those of another, as a line of their own.
    void plantInfill()
    {
        const auto isOne = [this](const Line& line) { return isReceiver(line); };
        const std::size_t at = chooseStretch(isOne, false);
        const Line& donor = chooseLine(isOne);
        const std::size_t first = donor.first + donor.count - kInfill;
        const std::string line = std::to_string(std::stoi(m_design[at].lineNumber) + 5);
        for (std::size_t i = 0; i < kInfill; ++i) {
            DesignPoint& point = m_design[first + i];
            const LocalPlace from = placeOf(m_design[at + i]);
            const LocalPlace to = placeOf(m_design[at + i + 1]);
            point.lineNumber = line;
            point.pointNumber = line + std::to_string(1001 + i);
            moveTo(point, {(from.x + to.x) / 2, (from.y + to.y) / 2});
            m_result.isTouched[first + i] = true;
        }
        m_result.faults.push_back(
            {"design lines",
             line,
             {},
             "its points are between those of line " + m_design[at].lineNumber});
    }

    [[nodiscard]] DesignFaults take() { return std::move(m_result); }

private:
    struct Line
    {
        std::size_t first;
        std::size_t count;
        bool isUsed = false; ///< has a fault, or is not to have one
    };

    void note(const char* kind, const DesignPoint& point, std::string what)
    {
        m_result.faults.push_back({kind, point.lineNumber, point.pointNumber, std::move(what)});
    }

    [[nodiscard]] bool isReceiver(const Line& line) const
    {
        return m_design[line.first].type == kReceiver;
    }

    /// A line without a fault, which is one of those that `isGood` allows.
    template <class Judge>
    Line& chooseLine(Judge isGood)
    {
        for (;;) {
            Line& line = m_lines[m_random.index(m_lines.size())];
            if (line.isUsed || !isGood(line))
                continue;
            line.isUsed = true;
            return line;
        }
    }

    /// Some points of such a line that have room around them. \returns the first of them
    template <class Judge>
    std::size_t chooseStretch(Judge isGood, bool atEnd)
    {
        std::size_t at = 0;
        chooseLine([&](const Line& line) {
            const std::size_t last = line.count - kStretch;
            at = line.first + (atEnd ? last : m_random.index(last));
            const std::span<const DesignPoint> points(m_design.data() + at, kStretch);
            return isGood(line) && std::ranges::all_of(points, hasRoom);
        });
        std::fill_n(m_result.isTouched.begin() + static_cast<std::ptrdiff_t>(at), kStretch, true);
        return at;
    }
    static bool hasRoom(const DesignPoint& point)
    {
        return obstacleAt(placeOf(point), kRoomM) == Obstacle::None;
    }

    std::vector<DesignPoint>& m_design;
    Random m_random;
    std::vector<Line> m_lines;
    DesignFaults m_result;
};

} // namespace

DesignFaults plantDesignFaults(std::vector<DesignPoint>& design, std::uint64_t seed)
{
    Planter planter(design, seed);
    for (const Planting& planting : kPlantings)
        planter.plant(planting);
    planter.plantInfill();
    return planter.take();
}

} // namespace demo
