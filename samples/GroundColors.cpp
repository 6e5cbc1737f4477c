#include "samples/GroundColors.h"

#include "samples/Terrain.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace demo {

namespace {

constexpr int kTile = 16; // pixels on a side; hills change slowly, so that heights are
                          // computed at the corners of a tile
constexpr double kSlopeStepM = 10;
constexpr double kBankM = 10; // of sand beside the river
constexpr double kYardM = 6;  // of earth around a house
constexpr double kRoadHalfWidthM = 4;
constexpr double kHedgeM = 2.5;
constexpr double kWoodsAboveM = 688;

// The two roads follow lanes of the village, and bend outside it.
constexpr double kLaneX = 2684.2;
constexpr double kLaneY = 2385.3;
constexpr double kStraightM = 250; // to each side of where they cross

constexpr GroundColor kWater{62, 96, 112};
constexpr GroundColor kSand{196, 184, 150};
constexpr GroundColor kRoof{168, 92, 74};
constexpr GroundColor kYard{178, 168, 148};
constexpr GroundColor kRoad{206, 202, 194};
constexpr GroundColor kHedge{78, 98, 58};
constexpr GroundColor kWoods{58, 84, 48};
constexpr std::array<GroundColor, 6> kFields{{
    {140, 156, 102},
    {150, 160, 108},
    {126, 148, 96},
    {168, 162, 118},
    {152, 142, 108},
    {132, 154, 104},
}};

/// A number from 0 to 1 that looks random, the same on every machine.
double noise(std::int64_t a, std::int64_t b)
{
    auto bits = static_cast<std::uint64_t>(a) * 0x9e3779b97f4a7c15U +
                static_cast<std::uint64_t>(b) * 0xc2b2ae3d27d4eb4fU;
    bits = (bits ^ (bits >> 31)) * 0xbf58476d1ce4e5b9U;
    bits = (bits ^ (bits >> 27)) * 0x94d049bb133111ebU;
    return static_cast<double>(bits >> 40) / static_cast<double>(1 << 24);
}

/// How far a road has bent away from its lane, metres.
double bend(double fromCrossing)
{
    const double outside = std::max(std::fabs(fromCrossing) - kStraightM, 0.0);
    return 130 * (1 - std::cos(outside / 600));
}

bool isRoad(const LocalPlace& place)
{
    return std::fabs(place.y - kLaneY - bend(place.x - kLaneX)) < kRoadHalfWidthM ||
           std::fabs(place.x - kLaneX - bend(place.y - kLaneY)) < kRoadHalfWidthM;
}

/// Strips of fields of different lengths, with a hedge around each.
GroundColor fieldColor(const LocalPlace& place)
{
    constexpr double kDepthM = 110;
    const double along = place.x * 0.96 + place.y * 0.28;
    const double across = place.y * 0.96 - place.x * 0.28 + 14 * std::sin(along / 380);
    const double strip = std::floor(across / kDepthM);
    const auto stripNumber = static_cast<std::int64_t>(strip);
    const double lengthM = 130 + 190 * noise(stripNumber, 1);
    const double shifted = along + 300 * noise(stripNumber, 2);
    const double field = std::floor(shifted / lengthM);
    if (across - strip * kDepthM < kHedgeM || shifted - field * lengthM < kHedgeM)
        return kHedge;
    const double chosen = noise(stripNumber, static_cast<std::int64_t>(field) + 1000);
    return kFields[static_cast<std::size_t>(chosen * kFields.size())];
}

/// Of a place in or near river or village.
GroundColor builtColor(const LocalPlace& place, const GroundColor& field)
{
    switch (obstacleAt(place)) {
    case Obstacle::River:
        return kWater;
    case Obstacle::Houses:
        return kRoof;
    case Obstacle::None:
        break;
    }
    if (obstacleAt(place, kBankM) == Obstacle::River)
        return kSand;
    return obstacleAt(place, kYardM) == Obstacle::Houses ? kYard : field;
}

/// Height and light at a corner of a tile.
struct Relief
{
    double heightM = 0;
    double light = 1; ///< 1 on level ground

    static Relief at(const PlanePlace& plane)
    {
        const double here = groundHeight(toGrid(plane));
        const double north = groundHeight(toGrid({plane.north + kSlopeStepM, plane.east}));
        const double west = groundHeight(toGrid({plane.north, plane.east - kSlopeStepM}));
        // Ground that rises to the south-east looks at the light.
        return {here, 1 + 2.2 * ((here - north) + (here - west)) / kSlopeStepM};
    }
};

Relief between(const Relief& a, const Relief& b, double share)
{
    return {std::lerp(a.heightM, b.heightM, share), std::lerp(a.light, b.light, share)};
}

class GroundPainter
{
public:
    explicit GroundPainter(const GroundRaster& raster)
        : m_raster(raster), m_pixels(static_cast<std::size_t>(raster.columns) *
                                     static_cast<std::size_t>(raster.rows) * 3)
    {
    }

    std::vector<std::uint8_t> paint()
    {
        for (int row = 0; row < m_raster.rows; row += kTile) {
            for (int column = 0; column < m_raster.columns; column += kTile)
                paintTile(column, row);
        }
        return std::move(m_pixels);
    }

private:
    void paintTile(int left, int top)
    {
        const int right = left + kTile;
        const int bottom = top + kTile;
        const Relief corners[] = {
            Relief::at(m_raster.at(left, top)), Relief::at(m_raster.at(right, top)),
            Relief::at(m_raster.at(left, bottom)), Relief::at(m_raster.at(right, bottom))};
        const LocalPlace middle = toGrid(m_raster.at(left + kTile / 2, top + kTile / 2));
        const bool isBuilt = obstacleAt(middle, kBankM + kTile * m_raster.pixelM) != Obstacle::None;
        for (int row = top; row < std::min(bottom, m_raster.rows); ++row) {
            const double down = static_cast<double>(row - top) / kTile;
            const Relief west = between(corners[0], corners[2], down);
            const Relief east = between(corners[1], corners[3], down);
            for (int column = left; column < std::min(right, m_raster.columns); ++column) {
                const double across = static_cast<double>(column - left) / kTile;
                paintPixel(column, row, between(west, east, across), isBuilt);
            }
        }
    }

    void paintPixel(int column, int row, const Relief& relief, bool isBuilt)
    {
        const LocalPlace place = toGrid(m_raster.at(column, row));
        const double grain = noise(column, row) - 0.5;
        const double treeline = kWoodsAboveM + 7 * std::sin(place.x / 61) * std::cos(place.y / 47);
        const bool isWood = relief.heightM > treeline;
        GroundColor color = isWood ? kWoods : fieldColor(place);
        double contrast = isWood ? 42 : 12;
        double light = relief.light;
        if (isBuilt) {
            const GroundColor built = builtColor(place, color);
            light = built.red == kWater.red ? 1 : light; // water is level
            color = built;
        }
        if (isRoad(place)) {
            color = kRoad;
            contrast = 6;
        }
        write(column, row, color, std::clamp(light, 0.6, 1.35), contrast * grain);
    }

    void write(int column, int row, const GroundColor& color, double light, double grain)
    {
        std::uint8_t* const pixel =
            &m_pixels[(static_cast<std::size_t>(row) * static_cast<std::size_t>(m_raster.columns) +
                       static_cast<std::size_t>(column)) *
                      3];
        const double channels[] = {color.red, color.green, color.blue};
        for (std::size_t i = 0; i < 3; ++i)
            pixel[i] =
                static_cast<std::uint8_t>(std::clamp(channels[i] * light + grain, 0.0, 255.0));
    }

    const GroundRaster& m_raster;
    std::vector<std::uint8_t> m_pixels;
};

} // namespace

std::vector<std::uint8_t> groundColors(const GroundRaster& raster)
{
    return GroundPainter(raster).paint();
}

} // namespace demo
