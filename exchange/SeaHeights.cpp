#include "exchange/SeaHeights.h"

#include "basalt_utilities/IDictionary.h"
#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/coords/ICoordTransform.h"

#include <vector>

namespace {

constexpr std::size_t kBlock = 1024;

/// Transforms the points in blocks, which is quicker than one by one.
class Blocks
{
public:
    explicit Blocks(ICoordTransform& transform) : m_transform(transform) {}

    void add(const SeaHeightPoint& point)
    {
        m_points.push_back(point);
        if (m_points.size() == kBlock)
            flush();
    }

    void flush()
    {
        m_positions.clear();
        for (const SeaHeightPoint& point : m_points)
            m_positions.push_back({point.latitudeDeg, point.longitudeDeg, point.altitudeM});
        m_codes.assign(m_points.size(), 0);
        m_transform.transformMany(
            static_cast<int>(CoordDirection::Target), static_cast<int>(CoordKind::Geodetic),
            static_cast<int>(CoordKind::Plane), static_cast<int>(lum::AngleFormat::DecimalDegrees),
            m_positions, m_positions, m_codes);
        for (std::size_t i = 0; i < m_points.size(); ++i)
            *m_points[i].seaHeightM =
                m_codes[i] == 0 ? m_positions[i].third : m_points[i].elevationM;
        m_points.clear();
    }

private:
    ICoordTransform& m_transform;
    std::vector<SeaHeightPoint> m_points;
    std::vector<CoordTriple> m_positions;
    std::vector<std::int32_t> m_codes;
};

} // namespace

void recomputeSeaHeights(ICoordTransform* transform, const IDictionary& parameters,
                         const SurveyPointWalk& walk)
{
    if (transform == nullptr || parameters.integer("geoid_valid") == 0) {
        walk([](const SeaHeightPoint& point) { *point.seaHeightM = point.elevationM; });
        return;
    }
    Blocks blocks(*transform);
    walk([&](const SeaHeightPoint& point) { blocks.add(point); });
    blocks.flush();
}
