#include "lum_sdk/raster/RasterPlace.h"

#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/raster/RasterWay.h"
#include "lum_sdk/Transform.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace lum {

namespace {

constexpr int kSamples = 24; // of each side of a raster, for its extent

QPointF forward(const std::array<double, 6>& to, const QPointF& pixel)
{
    return {to[0] + to[1] * pixel.x() + to[2] * pixel.y(),
            to[3] + to[4] * pixel.x() + to[5] * pixel.y()};
}

QPointF backward(const std::array<double, 6>& to, const QPointF& point)
{
    const double area = to[1] * to[5] - to[2] * to[4];
    const double x = point.x() - to[0];
    const double y = point.y() - to[3];
    return {(x * to[5] - y * to[2]) / area, (y * to[1] - x * to[4]) / area};
}

/// Points all over a raster, its corners and sides among them, in pixels.
std::vector<QPointF> gridOf(const QSize& size, int steps)
{
    std::vector<QPointF> points;
    for (int row = 0; row <= steps; ++row) {
        for (int column = 0; column <= steps; ++column)
            points.emplace_back(double(size.width()) * column / steps,
                                double(size.height()) * row / steps);
    }
    return points;
}

/// Whether a way leads to the same coordinates everywhere on a raster, to a hundredth of a pixel.
bool leadsNowhere(RasterWay& way, const RasterInfo& info)
{
    std::vector<QPointF> points = gridOf(info.size, 2);
    for (QPointF& point : points)
        point = forward(info.toCoordinates, point);
    std::vector<QPointF> onPlane = points;
    way.toPlane(onPlane);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const QPointF gap =
            backward(info.toCoordinates, onPlane[i]) - backward(info.toCoordinates, points[i]);
        if (!(std::hypot(gap.x(), gap.y()) < 0.01)) // NaN as well
            return false;
    }
    return true;
}

} // namespace

RasterPlace::RasterPlace(const RasterInfo& info, const IDictionary& system)
    : m_info(info), m_system(system)
{
    if (!info.isPlaced)
        return;
    const QPointF center =
        forward(info.toCoordinates, QPointF(info.size.width() / 2.0, info.size.height() / 2.0));
    m_way = RasterWay::between(info.wkt, system, center);
    if (m_way && leadsNowhere(*m_way, info))
        m_way.reset();
    const PlaneAxes axes = planeAxes(system);
    m_eastSign = axes.eastSign();
    m_northSign = axes.northSign();
    findExtent();
}

RasterPlace::~RasterPlace() = default;

bool RasterPlace::isFor(const IDictionary& system) const
{
    return dictionary_same(m_system, system);
}

void RasterPlace::toPixels(std::span<QPointF> map) const
{
    for (QPointF& point : map)
        point = {m_eastSign * point.x(), m_northSign * point.y()};
    if (m_way)
        m_way->toRaster(map);
    for (QPointF& point : map)
        point = backward(m_info.toCoordinates, point);
}

void RasterPlace::toMap(std::span<QPointF> pixels) const
{
    for (QPointF& point : pixels)
        point = forward(m_info.toCoordinates, point);
    if (m_way)
        m_way->toPlane(pixels);
    for (QPointF& point : pixels)
        point = {m_eastSign * point.x(), m_northSign * point.y()};
}

void RasterPlace::findExtent()
{
    std::vector<QPointF> points = gridOf(m_info.size, m_way ? kSamples : 1);
    toMap(points);
    m_isWhole = std::erase_if(points, [](const QPointF& point) {
                    return !std::isfinite(point.x()) || !std::isfinite(point.y());
                }) == 0;
    if (points.empty())
        return;
    const auto [left, right] =
        std::minmax_element(points.begin(), points.end(),
                            [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
    const auto [bottom, top] =
        std::minmax_element(points.begin(), points.end(),
                            [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); });
    m_extent = QRectF(QPointF(left->x(), bottom->y()), QPointF(right->x(), top->y()));
    if (m_way) { // a bent side reaches further than the points on it
        const double marginX = m_extent.width() / kSamples;
        const double marginY = m_extent.height() / kSamples;
        m_reach = m_extent.adjusted(-marginX, -marginY, marginX, marginY);
    } else {
        m_reach = m_extent;
    }
}

} // namespace lum
