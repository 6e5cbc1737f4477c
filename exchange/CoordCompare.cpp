#include "exchange/CoordCompare.h"

#include "basalt_utilities/IDictionary.h"
#include "lum_sdk/coords/Angles.h"

#include <algorithm>
#include <future>
#include <limits>
#include <memory>

namespace {

constexpr const char* kService = "coord_wjl";
constexpr std::size_t kRowsForTwoThreads = 5000; // below, a thread costs more than it gains

struct Release
{
    void operator()(ICoordTransform* transform) const
    {
        extensible_factory_release_ICoordTransform(transform);
    }
};
using Transform = std::unique_ptr<ICoordTransform, Release>;

Transform makeTransform()
{
    registerCoordComponents();
    return Transform(extensible_factory_get_ICoordTransform(kService, nullptr));
}

CoordTriple geodetic(const SurveyPoint& record)
{
    return {record.latitude, record.longitude, record.altitude};
}

struct Rows
{
    std::span<const SurveyPoint> records;
    std::span<CoordTriple> stored;
    std::span<CoordTriple> transformed;
    std::span<std::int32_t> codes;

    [[nodiscard]] Rows part(std::size_t first, std::size_t count) const
    {
        return {records.subspan(first, count), stored.subspan(first, count),
                transformed.subspan(first, count), codes.subspan(first, count)};
    }
};

/// Transforms the rows in pieces that stay in the processor's cache.
void transformRows(ICoordTransform& transform, const Rows& rows)
{
    constexpr std::size_t kPiece = 2048;
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    std::vector<CoordTriple> positions;
    for (std::size_t first = 0; first < rows.records.size(); first += kPiece) {
        const Rows piece = rows.part(first, std::min(kPiece, rows.records.size() - first));
        positions.clear();
        for (std::size_t i = 0; i < piece.records.size(); ++i) {
            const SurveyPoint& record = piece.records[i];
            positions.push_back(geodetic(record));
            piece.stored[i] = {record.north, record.east, record.elevation};
            piece.transformed[i] = {kNone, kNone, kNone}; // stays when the transformation fails
        }
        transform.transformMany(static_cast<std::int32_t>(CoordDirection::Source),
                                static_cast<std::int32_t>(CoordKind::Geodetic),
                                static_cast<std::int32_t>(CoordKind::Plane),
                                static_cast<std::int32_t>(lum::AngleFormat::DecimalDegrees),
                                positions, piece.transformed, piece.codes);
    }
}

} // namespace

CoordCompare::CoordCompare(const IDictionary& current, const IDictionary& file,
                           std::vector<SurveyPoint> records)
    : m_records(std::move(records))
{
    m_records.erase(std::remove_if(m_records.begin(), m_records.end(),
                                   [](const SurveyPoint& record) {
                                       return record.lineNumber.empty() ||
                                              record.pointNumber.empty();
                                   }),
                    m_records.end());
    m_stored.resize(m_records.size());
    m_transformed.resize(m_records.size());
    m_codes.resize(m_records.size());
    transform(current, file);
}

/// An object of the coordinate service serves one thread, so each half has its own. A fault of the
/// file's system does not matter: nothing goes through it.
void CoordCompare::transform(const IDictionary& current, const IDictionary& file)
{
    const Rows all{m_records, m_stored, m_transformed, m_codes};
    const std::size_t middle = size() < kRowsForTwoThreads ? size() : size() / 2;
    const Transform own = makeTransform();
    const Transform other = makeTransform();
    std::future<void> upperHalf;
    if (middle < size())
        upperHalf = std::async(std::launch::async, [&] {
            other->initialise(current, file);
            transformRows(*other, all.part(middle, size() - middle));
        });
    own->initialise(current, file);
    transformRows(*own, all.part(0, middle));
    if (upperHalf.valid())
        upperHalf.get();
    std::int32_t known = 0;
    for (const std::int32_t code : m_codes) {
        if (code == known)
            continue;
        known = code;
        m_messages.emplace(code, QString::fromUtf8(own->message(code)));
    }
}
