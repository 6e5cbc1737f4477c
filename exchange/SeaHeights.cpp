#include "exchange/SeaHeights.h"

#include "basalt_utilities/IDictionary.h"
#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace {

constexpr std::size_t kBlock = 1024;

constexpr auto kDirection = static_cast<std::int32_t>(CoordDirection::Target);
constexpr auto kFrom = static_cast<std::int32_t>(CoordKind::Geodetic);
constexpr auto kTo = static_cast<std::int32_t>(CoordKind::Plane);
constexpr auto kAngles = static_cast<std::int32_t>(lum::AngleFormat::DecimalDegrees);

QString translated(const char* text)
{
    return QCoreApplication::translate("SeaHeights", text);
}

/// Transforms the points in blocks, which is quicker than one by one.
class Blocks
{
public:
    Blocks(ICoordTransform& transform, SeaHeightSummary& summary)
        : m_transform(transform), m_summary(summary)
    {
    }

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
        const std::size_t failures = m_transform.transformMany(kDirection, kFrom, kTo, kAngles,
                                                               m_positions, m_positions, m_codes);
        for (std::size_t i = 0; i < m_points.size(); ++i)
            *m_points[i].seaHeightM =
                m_codes[i] == 0 ? m_positions[i].third : m_points[i].elevationM;
        if (failures != 0 && m_summary.reason.isEmpty())
            m_summary.reason = QString::fromUtf8(m_transform.message(firstFault()));
        m_summary.points += m_points.size();
        m_summary.elevations += failures;
        m_points.clear();
    }

private:
    [[nodiscard]] std::int32_t firstFault() const
    {
        return *std::find_if(m_codes.begin(), m_codes.end(), [](auto code) { return code != 0; });
    }

    ICoordTransform& m_transform;
    SeaHeightSummary& m_summary;
    std::vector<SeaHeightPoint> m_points;
    std::vector<CoordTriple> m_positions;
    std::vector<std::int32_t> m_codes;
};

} // namespace

QString SeaHeightSummary::toText() const
{
    if (reason.isEmpty())
        return {};
    const QString why = geoidFile.isEmpty() || reason.contains(geoidFile)
                            ? reason
                            : translated(QT_TRANSLATE_NOOP("SeaHeights", "Geoid file \"%1\": %2"))
                                  .arg(geoidFile, reason);
    return translated(
               QT_TRANSLATE_NOOP("SeaHeights",
                                 "Results whose sea height is their elevation: %1 of %2. %3"))
        .arg(QString::number(elevations), QString::number(points), why);
}

SeaHeightSummary recomputeSeaHeights(ICoordTransform* transform, const IDictionary& parameters,
                                     const SurveyPointWalk& walk)
{
    SeaHeightSummary summary;
    if (transform == nullptr || parameters.integer("geoid_valid") == 0) {
        walk([](const SeaHeightPoint& point) { *point.seaHeightM = point.elevationM; });
        return summary;
    }
    summary.geoidFile = lum::toQString(parameters.text("geoid_file"));
    if (!transform->isValid(kDirection)) { // told also before there is a result
        CoordTriple none;
        const std::int32_t fault = transform->transform(kDirection, kFrom, kTo, kAngles, 0, 0, 0,
                                                        &none.first, &none.second, &none.third);
        summary.reason = QString::fromUtf8(transform->message(fault));
    }
    Blocks blocks(*transform, summary);
    walk([&](const SeaHeightPoint& point) { blocks.add(point); });
    blocks.flush();
    return summary;
}
